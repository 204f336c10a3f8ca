#include "FormDriver.h"

#include "cfgfile/AircraftFile.h"
#include "cfgfile/StationFile.h"
#include "cfgfile/WeightBlock.h"
#include "cfgfile/inputoutput.h"
#include "freighter/FreighterForms.h"
#include "jets/Boeing.h"
#include "jets/JetForms.h"
#include "platform/MemoryFileSystem.h"
#include "platform/RecordingCanvas.h"
#include "regional/CRJ200.h"
#include "regional/RegionalForm.h"
#include "regional/RegionalForms.h"
#include "shell/AircraftTypes.h"
#include "shell/DeckForm.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace fs = std::filesystem;

namespace quillet {

namespace {

// What users type into a weight box, the odd answers included; nothing stands for "Cancel". No
// negative weight: a form keeps one out of its total until the station is cleared, as it always has.
const char* const kAnswers[] = {"170",  "189.5", "",     "0",      "1000", "abc",  "1e3",
                                "12,5", "99999", " 250", "200 lb", "0.04", nullptr};

std::string cfgOf(std::string_view type)
{
    std::string text = "[fltsim.0]\r\ntitle=" + std::string(type) + "\r\n\r\n[WEIGHT_AND_BALANCE]\r\n";
    text += "max_gross_weight = 1\r\n\r\n[GeneralEngineData]\r\nengine_type = 1\r\n";
    return text;
}

// The recording canvas's measures, but nothing kept: no promise the driver checks is drawn, and a
// long run would otherwise keep every drawing it ever made.
class BlankCanvas final : public RecordingCanvas {
public:
    using RecordingCanvas::RecordingCanvas;

protected:
    void doClear() override {}
    void doKeepAsBackground() override {}
    void doLine(double, double, double, double, Rgb) override {}
    void doBox(double, double, double, double, Rgb) override {}
    void doCircle(double, double, double, Rgb) override {}
    void doFloodFill(int, int) override {}
    void doText(double, double, std::string_view) override {}
};

void makeFolder(const Files& files, const fs::path& folder)
{
    if (auto* memory = dynamic_cast<MemoryFileSystem*>(&files.system()))
        memory->addFolder(folder);
    else
        fs::create_directories(folder);
}

void write(const Files& files, const fs::path& path, std::string_view bytes)
{
    if (auto written = files.replace(path, bytes); !written)
        throw std::runtime_error(written.error().message);
}

} // namespace

std::optional<std::string> FormDriver::AnsweringPrompt::inputBox(const std::string&, const std::string&,
                                                                 const std::string&)
{
    const char* answer = kAnswers[m_choices.pick(static_cast<int>(std::size(kAnswers)))];
    if (!answer)
        return std::nullopt;
    return std::string(answer);
}

FormDriver::FormDriver(const fs::path& folder, Files files, Choices& choices)
    : m_choices(choices), m_prompt(choices), session(m_prompt, m_random, m_clock, folder)
{
    session.files = files;
    session.makeCanvas = [](double width, double height) {
        return std::make_unique<BlankCanvas>(width, height);
    };
    session.state.simfolder = (folder / "sim").string();
    std::string ini = session.state.simfolder + "\r\n" + std::to_string(kAircraftTypes.size()) + "\r\n";
    int n = 0;
    for (const AircraftType& type : kAircraftTypes) {
        const std::string name = "plane" + std::to_string(n++);
        makeFolder(files, folder / "sim/aircraft" / name);
        write(files, folder / "sim/aircraft" / name / "aircraft.cfg", cfgOf(type.type));
        ini += std::string(type.type) + "," + name + "\r\n";
    }
    write(files, folder / "sim/fs2000.exe", "placeholder");
    write(files, folder / "quillet.ini", ini);
    m_startState = session.state;
    session.currentType = [this] { return m_form1->Combo1.text(); };
    startUp();
}

void FormDriver::startUp()
{
    m_form1.reset();
    m_forms = std::make_unique<FormRegistry>();
    registerRegionalForms(*m_forms);
    registerJetForms(*m_forms);
    registerFreighterForms(*m_forms);
    m_form1 = std::make_unique<Form1>(session, *m_forms);
    m_form1->Form_Load();
    session.messages.take();
    checkLoad("start-up");
}

void FormDriver::stop()
{
    m_form1.reset();
    m_forms.reset();
    session.state = m_startState;
    session.messages.take();
}

void FormDriver::restart()
{
    stop();
    m_broken.clear();
    m_peak = 1;
    m_saves = 0;
    m_refused = 0;
    startUp();
}

void FormDriver::fail(const std::string& what)
{
    if (m_broken.empty())
        m_broken = what;
}

void FormDriver::checkLoad(const std::string& action)
{
    const LoadState& state = session.state;
    const float sum = state.sumOfWeights();
    // The forms add and take away single weights in single precision, so each step may part the two
    // by rounding at the size of the largest total the run has held (a 99999 lb answer taken away
    // again leaves its rounding behind); a fault parts them by a weight.
    float magnitude = 1;
    for (int i = 0; i < state.stationsInUse(); ++i)
        magnitude += std::fabs(state.stationweight[static_cast<std::size_t>(i)]);
    m_peak = std::max({m_peak, magnitude, std::fabs(state.loadweight)});
    if (!(std::fabs(state.loadweight - sum) <= m_peak * 1e-5f)) {
        char text[200];
        std::snprintf(text, sizeof text, "after %s on %s, loadweight is %.3f but the stations hold %.3f",
                      action.c_str(), m_form1->Combo1.text().c_str(), state.loadweight, sum);
        fail(text);
    }
}

void FormDriver::click(LoadForm& form, bool move)
{
    const LoadState& state = session.state;
    // Mostly on a station, where a click does something; sometimes anywhere.
    double X = m_choices.pick(12000);
    double Y = m_choices.pick(6000);
    if (m_choices.pick(4) != 0 && state.stationsInUse() > 0) {
        const auto station = static_cast<std::size_t>(m_choices.pick(state.stationsInUse()));
        X = state.stationpx[station] + m_choices.pick(61) - 30;
        Y = state.stationpy[station] + m_choices.pick(61) - 30;
    }
    const int button = m_choices.pick(4) == 0 ? 2 : 1;
    if (auto* regional = dynamic_cast<RegionalForm*>(&form)) {
        if (!move && !regional->location.empty())
            regional->location_Click(m_choices.pick(static_cast<int>(regional->location.size())));
    } else if (auto* crj = dynamic_cast<CRJ200*>(&form)) {
        move ? crj->Picture2_MouseMove(0, 0, X, Y) : crj->Picture2_MouseDown(button, 0, X, Y);
    } else if (auto* deck = dynamic_cast<DeckForm*>(&form)) {
        move ? deck->Picture1_MouseMove(0, 0, X, Y) : deck->Picture1_MouseDown(button, 0, X, Y);
    }
}

void FormDriver::save(LoadForm& form)
{
    session.messages.take();
    form.mnusave_Click();
    ++m_saves;
    if (!session.messages.pending().empty()) {
        ++m_refused;
        return;
    }

    // Saved: both files read back to the load on the form.
    const std::string type = m_form1->Combo1.text();
    const LoadState& state = session.state;
    auto stations = session.files.read(session.programFolder / (type + ".cfg"), kMaxFileBytes);
    if (!stations || stations.value() != stationFileText(state))
        return fail("the station file of " + type + " does not hold the saved load");
    auto again = readStationFile(stations.value());
    static LoadState back;
    if (again)
        again.value().restoreInto(back);
    if (!again || stationFileText(back) != stations.value())
        return fail("the station file of " + type + " does not read back to the same load");
    const auto cfgPath = state.cfgsource.file;
    auto cfg = session.files.read(cfgPath, kMaxFileBytes);
    auto buffer = cfg ? bufferAircraftFile(cfg.value(), kCfgLineCapacity) : Error{"unreadable"};
    if (!buffer)
        return fail("the aircraft.cfg of " + type + " does not read back");
    const auto block = weightAndBalanceBlock(state, type, m_clock.today());
    if (rewriteAircraftFile(buffer.value().lines, buffer.value().sectionlines, block) != cfg.value())
        fail("the aircraft.cfg of " + type + " does not hold the saved load");
}

void FormDriver::step()
{
    if (!m_broken.empty())
        return;
    const int action = m_choices.pick(20);
    if (action == 0) {
        LoadForm* open = m_form1->selectedForm();
        if (open && open->visible)
            open->Form_Unload();
        m_form1->Combo1.setListIndex(m_choices.pick(static_cast<int>(m_form1->Combo1.items().size())));
        session.messages.take();
        return checkLoad("choosing the type");
    }
    LoadForm* form = m_form1->selectedForm();
    if (!form)
        return fail("no load form for " + m_form1->Combo1.text());
    if (!form->visible) {
        m_form1->Command2_Click(); // "Adjust"
        session.messages.take();
        return checkLoad("Adjust");
    }
    auto* jet = dynamic_cast<Boeing*>(form);
    std::string name;
    switch (action) {
    case 1:
        name = "closing the form";
        form->Form_Unload();
        break;
    case 2:
    case 3:
    case 4:
        name = "a preset";
        action == 2 ? form->mnulight_Click() : action == 3 ? form->mnuheav_Click() : form->mnumed_Click();
        break;
    case 5:
        name = "\"Empty Aircraft\"";
        if (jet)
            jet->mnuempty_Click();
        break;
    case 6:
        name = "reload";
        form->mnuload_Click();
        break;
    case 7:
        name = "save";
        save(*form);
        break;
    case 8:
    case 9:
        name = "a pointer move";
        click(*form, true);
        break;
    default:
        name = "a click";
        click(*form, false);
        break;
    }
    session.messages.take();
    checkLoad(name);
}

void FormDriver::readEveryType()
{
    for (int i = 0; i < static_cast<int>(m_form1->Combo1.items().size()); ++i) {
        m_form1->Combo1.setListIndex(i);
        session.messages.take();
        if (!readcfg(session))
            fail("the files of " + m_form1->Combo1.text() +
                 " do not read back: " + session.messages.take().front());
        checkLoad("reading back");
    }
}

} // namespace quillet
