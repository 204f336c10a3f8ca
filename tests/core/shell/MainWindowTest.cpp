#include "ShellFixture.h"
#include "platform/Format.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

// A load form that records what the main window asks of it.
class FakeForm : public LoadForm {
public:
    explicit FakeForm(Session& session, float empty, float load)
        : LoadForm(session), m_empty(empty), m_load(load)
    {
    }

    void Form_Load() override
    {
        calls.push_back("Form_Load");
        m_session.state.emptyweight = m_empty;
        m_session.state.maxtakeoff = m_session.state.maxzerofuel = 100000;
        m_session.state.maxfuel = 5000;
        m_session.state.loadweight = 0;
    }
    void mnuload_Click() override
    {
        calls.push_back("mnuload_Click");
        m_session.state.loadweight = m_load; // as if read from its station file
    }
    void mnusave_Click() override {}
    void afterLoadChange() override {}
    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return picture4; }
    Canvas& Picture3() override { return picture3; }
    void nopass() override { calls.push_back("nopass"); }

    std::vector<std::string> calls;
    SummaryLabels labels;
    RecordingCanvas picture4{2295, 375};
    RecordingCanvas picture3{1695, 375};

private:
    float m_empty;
    float m_load;
};

class MainWindow : public ShellFixture {
protected:
    void SetUp() override
    {
        dir.makeSimulator("FS2000.EXE");
        dir.makeAircraft("beech");
        dir.makeAircraft("b767");
        dir.writeIni(dir.sim(), {"Beech 1900D,beech", "B767-300ER,b767", "beech 1900d,beech"});
        forms.add("Beech", [this](Session& s) {
            auto form = std::make_unique<FakeForm>(s, 10615, 340);
            beech = form.get();
            return form;
        });
        forms.add("Boeing", [](Session& s) { return std::make_unique<FakeForm>(s, 198440, 51000); });
        dir.write("BEECH.GIF", "GIF89a");
    }

    FakeForm* beech = nullptr;
};

TEST_F(MainWindow, RefreshSetsTheTypeUpReadsItsLoadAndShowsTheSummary)
{
    form1.Form_Load();
    ASSERT_NE(beech, nullptr);
    EXPECT_EQ(form1.Combo1.text(), "Beech 1900D");
    ASSERT_GE(beech->calls.size(), 3u);
    EXPECT_EQ(std::vector<std::string>(beech->calls.begin(), beech->calls.begin() + 3),
              (std::vector<std::string>{"Form_Load", "mnuload_Click", "nopass"}));
    EXPECT_EQ(form1.lblbow.text, "Basic Operating weight = 10615 lb.");
    EXPECT_EQ(form1.lblpax.text, "PAX weight =  340 lb.");
    EXPECT_EQ(form1.lblmf.text, "Maximum Allowable Fuel weight =  5000 lb.");
    EXPECT_EQ(form1.lbltot.text, "Total weight = 15955 lb.");
    EXPECT_TRUE(form1.PicDHC.visible);
    EXPECT_EQ(beech->labels.lblpax.text, form1.lblpax.text) << "the same texts as the form's summary";
}

TEST_F(MainWindow, EachSelectionRecomputesTheLinesFromThatType)
{
    form1.Form_Load();
    form1.Combo1.setListIndex(1);
    EXPECT_EQ(form1.lblbow.text, "Basic Operating weight = 198440 lb.");
    EXPECT_EQ(form1.lblpax.text, "PAX weight =  51000 lb.");
    EXPECT_TRUE(form1.PicDHC.file.empty()) << "its picture is missing";
    ASSERT_EQ(session.messages.pending().size(), 1u);
    EXPECT_NE(session.messages.pending()[0].find("\"B767-300ER.gif\" was not found"), std::string::npos);

    form1.Combo1.setListIndex(0);
    EXPECT_EQ(form1.lblbow.text, "Basic Operating weight = 10615 lb.");
    EXPECT_TRUE(std::filesystem::equivalent(form1.PicDHC.file, dir.path() / "BEECH.GIF"))
        << "pictures are found without regard to letter case";
    form1.Combo1.setListIndex(1);
    EXPECT_EQ(session.messages.pending().size(), 1u) << "a missing picture is told once";
}

TEST_F(MainWindow, TypeStringsCompareWithLetterCaseAndAnUnknownTypeOpensNoForm)
{
    form1.Form_Load();
    beech->calls.clear();
    form1.Combo1.setListIndex(2); // "beech 1900d"
    EXPECT_TRUE(beech->calls.empty());
    form1.Command2_Click();
    EXPECT_TRUE(form1.visible);
}

TEST_F(MainWindow, AdjustOpensTheFormAndClosingItBringsTheMainWindowBack)
{
    form1.Form_Load();
    beech->calls.clear();
    form1.Command2_Click();
    EXPECT_EQ(beech->calls, std::vector<std::string>{"mnuload_Click"});
    EXPECT_FALSE(form1.visible);
    EXPECT_TRUE(beech->visible);

    session.state.loadweight = 999; // edited on the form but not saved
    beech->calls.clear();
    beech->Form_Unload();
    EXPECT_TRUE(form1.visible);
    EXPECT_FALSE(beech->visible);
    EXPECT_EQ(beech->calls.front(), "nopass") << "the summary runs on the closing form first";
    EXPECT_EQ(form1.lblpax.text, "PAX weight =  340 lb.") << "the main window shows the saved load again";
}

TEST_F(MainWindow, ATypeWithoutItsFormIsToldOnce)
{
    dir.makeAircraft("crj");
    dir.writeIni(dir.sim(), {"CRJ-200ER,crj", "Beech 1900D,beech"});
    form1.Form_Load();
    form1.Combo1.setListIndex(1);
    form1.Combo1.setListIndex(0);
    EXPECT_EQ(told("cannot be loaded yet").size(), 1u);
    form1.Command2_Click();
    EXPECT_TRUE(form1.visible);
}

TEST_F(MainWindow, EmptyListAdjustDoesNothing)
{
    dir.writeIni(dir.sim(), {});
    form1.Form_Load();
    form1.Command2_Click();
    EXPECT_TRUE(form1.visible);
    EXPECT_EQ(form1.lblpax.text, "PAX weight =  0 lb.");
    EXPECT_EQ(form1.lbltot.text, "Total weight = 0 lb.");
}

TEST_F(MainWindow, MenusShowTheFixedTextWindows)
{
    form1.munver_Click();
    EXPECT_TRUE(form1.aboutVisible);
    form1.mnucopyright_Click();
    EXPECT_TRUE(form1.form2Visible);
    form1.Form_Unload();
    EXPECT_TRUE(form1.ended);
}

} // namespace
} // namespace quillet
