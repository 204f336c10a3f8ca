#include "FormRig.h"
#include "cfgfile/StationFile.h"
#include "freighter/DC10F.h"
#include "jets/Boeing.h"
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
    std::function<void(LoadForm&)> heavy;
    std::function<void(LoadForm&)> light;
    int first;  // an empty station, clicked and answered
    int second; // clicked after the heavy load
};

template <class Form>
void pressAt(LoadForm& form, const LoadState& state, int station)
{
    static_cast<Form&>(form).Picture1_MouseDown(DeckForm::kLeftButton, 0, state.stationpx[station],
                                                state.stationpy[station]);
}

const FormKind kKinds[] = {
    {"Beech 1900D", [](Session& s) { return std::make_unique<RegionalForm>(s, beechType()); },
     [](LoadForm& f, const LoadState&, int station) {
         static_cast<RegionalForm&>(f).location_Click(station);
     },
     [](LoadForm& f) { static_cast<RegionalForm&>(f).mnuheav_Click(); },
     [](LoadForm& f) { static_cast<RegionalForm&>(f).mnulight_Click(); }, 5, 7},
    {"CRJ-200ER", [](Session& s) { return std::make_unique<CRJ200>(s); },
     [](LoadForm& f, const LoadState& state, int station) {
         static_cast<CRJ200&>(f).Picture2_MouseDown(CRJ200::kLeftButton, 0, state.stationpx[station],
                                                    state.stationpy[station]);
     },
     [](LoadForm& f) { static_cast<CRJ200&>(f).mnuheav_Click(); },
     [](LoadForm& f) { static_cast<CRJ200&>(f).mnulight_Click(); }, 4, 9},
    {"B737-300", [](Session& s) { return std::make_unique<Boeing>(s); }, pressAt<Boeing>,
     [](LoadForm& f) { static_cast<Boeing&>(f).mnuheav_Click(); },
     [](LoadForm& f) { static_cast<Boeing&>(f).mnulight_Click(); }, 12, 30},
    {"DC-10-30F", [](Session& s) { return std::make_unique<DC10F>(s); }, pressAt<DC10F>,
     [](LoadForm& f) { static_cast<DC10F&>(f).mnuheav_Click(); },
     [](LoadForm& f) { static_cast<DC10F&>(f).mnulight_Click(); }, 3, 20},
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
    form->step("Heavy Load", [&] { GetParam().heavy(*form); });
    EXPECT_EQ(form->undoName(), "Heavy Load");
    if (state.stationweight[second] == 0)
        rig.prompt.answer("200");
    click(second);
    EXPECT_EQ(form->undoName(), state.stationname[second]);
    form->step("Light Load", [&] { GetParam().light(*form); });
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

INSTANTIATE_TEST_SUITE_P(EveryFormKind, LoadFormHistory, ::testing::ValuesIn(kKinds), [](const auto& info) {
    std::string name = info.param.type;
    std::erase_if(name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)); });
    return name;
});

struct CloseCase {
    const char* name;
    SaveChoice answer;
    bool diskFull; // makes the save fail
    bool closes;
    bool saved;
};

class ClosingUnsaved : public ::testing::TestWithParam<CloseCase>, protected OpenedForm {
protected:
    ClosingUnsaved() : OpenedForm(kKinds[0]) {}
};

TEST_P(ClosingUnsaved, AsksWhetherToSaveAndClosesOnlyWhenTheLoadIsSafe)
{
    const std::string stored = rig.dir.read("Beech 1900D.cfg");
    EXPECT_TRUE(form->Form_QueryUnload()) << "nothing to ask yet";
    form->step("Heavy Load", [&] { static_cast<RegionalForm&>(*form).mnuheav_Click(); });
    if (GetParam().diskFull)
        rig.session.files.failWritesAfter(10);
    rig.clock.set(TimeOfDay{9, 5});
    rig.prompt.answerSave(GetParam().answer);

    EXPECT_EQ(form->Form_QueryUnload(), GetParam().closes);
    EXPECT_EQ(rig.prompt.saveQuestions().size(), 1u);
    EXPECT_EQ(form->modified(), !GetParam().saved);
    EXPECT_EQ(rig.dir.read("Beech 1900D.cfg"), GetParam().saved ? stationFile() : stored);
    EXPECT_EQ(form->saves(), GetParam().saved ? 1 : 0);
    if (GetParam().saved) {
        EXPECT_EQ(formatTime(form->savedAt()), "09:05");
    }
}

INSTANTIATE_TEST_SUITE_P(Answers, ClosingUnsaved,
                         ::testing::Values(CloseCase{"Save", SaveChoice::Save, false, true, true},
                                           CloseCase{"RefusedSave", SaveChoice::Save, true, false, false},
                                           CloseCase{"Discard", SaveChoice::Discard, false, true, false},
                                           CloseCase{"Cancel", SaveChoice::Cancel, false, false, false}),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(LoadFormHistoryOfJets, AnotherTypeStartsANewHistoryAndTheSameTypeKeepsIt)
{
    OpenedForm opened(kKinds[2]);
    opened.form->step("Heavy Load", [&] { static_cast<Boeing&>(*opened.form).mnuheav_Click(); });
    opened.form->keepHistoryFor("B737-300");
    EXPECT_EQ(opened.form->undoName(), "Heavy Load");
    opened.form->keepHistoryFor("B757-200");
    EXPECT_EQ(opened.form->undoName(), "");
    EXPECT_FALSE(opened.form->undo());
}

} // namespace
} // namespace quillet
