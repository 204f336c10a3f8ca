#include "FormRig.h"
#include "TypeName.h"
#include "cfgfile/StationFile.h"
#include "freighter/DC10F.h"
#include "jets/Boeing.h"
#include "platform/RecordingFileSystem.h"
#include "regional/CRJ200.h"
#include "regional/RegionalForm.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace quillet {
namespace {

constexpr const char* kEmptyCfg =
    "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n";

// How a user loads one kind of form: a click on a station, and two of its presets.
struct FormKind {
    const char* type;
    std::function<std::unique_ptr<LoadForm>(Session&)> make;
    std::function<void(LoadForm&, const LoadState&, int station)> click;
    std::function<void(LoadForm&, bool heavy)> preset; // the heavy or the light load
    int first;                                         // an empty station, clicked and answered
    int second;                                        // clicked after the heavy load
};

template <class Form>
void pressAt(LoadForm& form, const LoadState& state, int station)
{
    static_cast<Form&>(form).Picture1_MouseDown(DeckForm::kLeftButton, 0, state.stationpx[station],
                                                state.stationpy[station]);
}
template <class Form>
void preset(LoadForm& form, bool heavy)
{
    heavy ? static_cast<Form&>(form).mnuheav_Click() : static_cast<Form&>(form).mnulight_Click();
}

const FormKind kKinds[] = {
    {"Beech 1900D", [](Session& s) { return std::make_unique<RegionalForm>(s, beechType()); },
     [](LoadForm& f, const LoadState&, int station) {
         static_cast<RegionalForm&>(f).location_Click(station);
     },
     preset<RegionalForm>, 5, 7},
    {"CRJ-200ER", [](Session& s) { return std::make_unique<CRJ200>(s); },
     [](LoadForm& f, const LoadState& state, int station) {
         static_cast<CRJ200&>(f).Picture2_MouseDown(CRJ200::kLeftButton, 0, state.stationpx[station],
                                                    state.stationpy[station]);
     },
     preset<CRJ200>, 4, 9},
    {"B737-300", [](Session& s) { return std::make_unique<Boeing>(s); }, pressAt<Boeing>, preset<Boeing>, 12,
     30},
    {"DC-10-30F", [](Session& s) { return std::make_unique<DC10F>(s); }, pressAt<DC10F>, preset<DC10F>, 3,
     20},
};

// A form opened on its type as "Adjust" opens it, with presets drawn from the program's generator.
struct OpenedForm {
    explicit OpenedForm(const FormKind& kind) : rig(&random)
    {
        rig.addAircraft(kind.type, "plane", kEmptyCfg);
        rig.currentType = kind.type;
        form = kind.make(rig.session);
        form->keepHistoryFor(rig.currentType);
        form->Form_Load();
        form->mnuload_Click();
    }

    std::string stationFile() const { return stationFileText(rig.session.state); }

    SeededRandom random;
    FormRig rig;
    std::unique_ptr<LoadForm> form;
};

class LoadFormHistory : public ::testing::TestWithParam<FormKind>, protected OpenedForm {
protected:
    LoadFormHistory() : OpenedForm(GetParam()) {}

    void click(int station)
    {
        form->step("Click", [&] { GetParam().click(*form, rig.session.state, station); });
    }
};

TEST_P(LoadFormHistory, UndoingEveryStepGivesTheReadLoadBackAndRedoingThemTheLast)
{
    const LoadState& state = rig.session.state;
    const std::string read = stationFile();
    const int first = GetParam().first;
    const int second = GetParam().second;
    ASSERT_EQ(state.stationweight[first], 0);

    rig.prompt.answer("185");
    click(first);
    EXPECT_EQ(form->undoName(), state.stationname[first]);
    EXPECT_TRUE(form->modified());
    form->step("Heavy Load", [&] { GetParam().preset(*form, true); });
    EXPECT_EQ(form->undoName(), "Heavy Load");
    if (state.stationweight[second] == 0)
        rig.prompt.answer("200");
    click(second);
    EXPECT_EQ(form->undoName(), state.stationname[second]);
    form->step("Light Load", [&] { GetParam().preset(*form, false); });
    const std::string last = stationFile();
    ASSERT_NE(last, read);

    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(form->undo()) << i;
    EXPECT_FALSE(form->undo());
    EXPECT_EQ(stationFile(), read);
    EXPECT_FALSE(form->modified()) << "back at the load last read";
    EXPECT_FLOAT_EQ(state.loadweight, state.sumOfWeights());

    // A cancelled input box changes nothing and leaves what can be redone.
    rig.prompt.cancel();
    click(first);
    EXPECT_EQ(form->redoName(), state.stationname[first]);

    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(form->redo()) << i;
    EXPECT_FALSE(form->redo());
    EXPECT_EQ(stationFile(), last);
    EXPECT_EQ(form->undoName(), "Light Load");
}

INSTANTIATE_TEST_SUITE_P(EveryFormKind, LoadFormHistory, ::testing::ValuesIn(kKinds),
                         [](const auto& info) { return testNameOf(info.param.type); });

TEST(ClosingUnsaved, AsksWhetherToSaveAndClosesOnlyWhenTheLoadIsSafe)
{
    struct Case {
        const char* what;
        SaveChoice answer;
        bool diskFull; // makes the save fail
        bool closes;
        bool saved;
    };
    for (const Case& c : {Case{"save", SaveChoice::Save, false, true, true},
                          Case{"refused save", SaveChoice::Save, true, false, false},
                          Case{"discard", SaveChoice::Discard, false, true, false},
                          Case{"cancel", SaveChoice::Cancel, false, false, false}}) {
        SCOPED_TRACE(c.what);
        OpenedForm opened(kKinds[0]);
        FormRig& rig = opened.rig;
        LoadForm& form = *opened.form;
        const std::string stored = rig.dir.read("Beech 1900D.cfg");
        EXPECT_TRUE(form.Form_QueryUnload()) << "nothing to ask yet";
        form.step("Heavy Load", [&] { preset<RegionalForm>(form, true); });
        RecordingFileSystem disk{systemFiles()};
        rig.session.files = Files(disk);
        if (c.diskFull)
            disk.failWritesAfter(10);
        rig.clock.set(TimeOfDay{9, 5});
        rig.prompt.answerSave(c.answer);

        EXPECT_EQ(form.Form_QueryUnload(), c.closes);
        EXPECT_EQ(rig.prompt.saveQuestions().size(), 1u);
        EXPECT_EQ(form.modified(), !c.saved);
        EXPECT_EQ(rig.dir.read("Beech 1900D.cfg"), c.saved ? opened.stationFile() : stored);
        EXPECT_EQ(form.saves(), c.saved ? 1 : 0);
        if (c.saved) {
            EXPECT_EQ(formatTime(form.savedAt()), "09:05");
        }
    }
}

TEST(LoadFormHistoryOfJets, AnotherTypeStartsANewHistoryAndTheSameTypeKeepsIt)
{
    OpenedForm opened(kKinds[2]);
    opened.form->step("Heavy Load", [&] { preset<Boeing>(*opened.form, true); });
    opened.form->keepHistoryFor("B737-300");
    EXPECT_EQ(opened.form->undoName(), "Heavy Load");
    opened.form->keepHistoryFor("B757-200");
    EXPECT_EQ(opened.form->undoName(), "");
    EXPECT_FALSE(opened.form->undo());
}

} // namespace
} // namespace quillet
