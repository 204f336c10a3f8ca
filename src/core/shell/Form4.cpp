#include "Form4.h"

#include "Form1.h"
#include "Settings.h"
#include "platform/Paths.h"

namespace quillet {

Form4::Form4(Session& session, Form1& main) : m_session(session), m_main(main)
{
    reset();
}

void Form4::reset()
{
    Combo1 = ComboState("Active Aircraft menu");
    Combo2 = ComboState("Avaliable Aircraft");
    Valid_dir = TextBoxState();
    invalid_dir = TextBoxState("aircraftdir");
    invalid_dir.tooltip = "Enter vaild aircraft directory";
    simdir = TextBoxState(std::string(kDefaultSimFolder));
    Command1_visible = false;
    Check2 = false;

    Combo1.onClick = [this] { Combo1_Click(); };
    invalid_dir.onChange = [this] { invalid_dir_Change(); };
    simdir.onChange = [this] { simdir_Change(); };
}

Form4& Form4::loaded()
{
    if (!m_loaded) {
        m_loaded = true;
        reset();
        Form_Load();
    }
    return *this;
}

void Form4::close()
{
    if (!m_loaded)
        return;
    Form_Unload();
    m_loaded = false;
    visible = false;
}

void Form4::Form_Load()
{
    Combo1.clear();
    Combo2.clear();
    const LoadState& state = m_session.state;
    for (int i = 0; i < state.nmenu; ++i) {
        if (state.menuvalid[i]) {
            Combo1.addItem(state.menutype[i]);
            Combo1.setListIndex(0);
        } else {
            Combo2.addItem(state.menutype[i]);
            Combo2.setListIndex(0);
        }
    }
}

void Form4::showFolderOfActive()
{
    const LoadState& state = m_session.state;
    for (int i = 0; i < state.nmenu; ++i) {
        if (state.menutype[i] == Combo1.text())
            Valid_dir.setText(state.menufolder[i]);
    }
}

void Form4::Combo1_Click()
{
    showFolderOfActive();
}

void Form4::invalid_dir_Change()
{
    // Only a folder of the aircraft folder may be taken, not a path leading elsewhere.
    Command1_visible =
        isSingleName(invalid_dir.text()) &&
        fileExists(m_session.state.simfolder + "\\aircraft\\" + invalid_dir.text() + "\\aircraft.cfg",
                   m_session.programFolder, m_session.files.system());
}

void Form4::Command1_Click()
{
    const int chosen = Combo2.listIndex();
    // With nothing chosen in the list there is nothing to move.
    if (chosen < 0)
        return;
    LoadState& state = m_session.state;
    const std::string type = Combo2.text();
    for (int i = 0; i < state.nmenu; ++i) {
        if (state.menutype[i] == type) {
            state.menufolder[i] = invalid_dir.text();
            Valid_dir.setText(state.menufolder[i]);
            Combo1.addItem(state.menutype[i]);
        }
    }
    Combo2.removeItem(chosen);
    Combo2.setListIndex(-1);
    invalid_dir.setText("");
    Command1_visible = false;
    showFolderOfActive();
}

void Form4::simdir_Change()
{
    // A folder without the simulator is simply not taken.
    if (!fileExists(simdir.text() + "\\fs2000.exe", m_session.programFolder, m_session.files.system()))
        return;
    Check2 = true;
    m_session.state.simfolder = simdir.text();
    if (!m_main.saveini(m_session.state.nmenu))
        return;
    m_main.loadini(m_session.state.nmenu);
}

std::filesystem::path Form4::simulatorPickerStart() const
{
    if (auto found = findPath(simdir.text(), m_session.programFolder))
        return *found;
    return m_session.programFolder;
}

std::filesystem::path Form4::aircraftPickerStart() const
{
    if (auto found = findPath(m_session.state.simfolder + "\\aircraft", m_session.programFolder))
        return *found;
    return simulatorPickerStart();
}

void Form4::simulatorFolderChosen(const std::filesystem::path& folder)
{
    simdir.setText(displayPath(folder));
}

void Form4::aircraftFolderChosen(const std::filesystem::path& folder)
{
    const auto aircraft = findPath(m_session.state.simfolder + "\\aircraft", m_session.programFolder);
    std::error_code ec;
    std::filesystem::path chosen = folder.lexically_normal();
    if (!chosen.has_filename())
        chosen = chosen.parent_path(); // "…/b737_300/"
    if (!aircraft || !std::filesystem::equivalent(chosen.parent_path(), *aircraft, ec)) {
        m_session.messages.report(quotedPath(folder) + " is not in the simulator's aircraft folder \"" +
                                  m_session.state.simfolder +
                                  "\\aircraft\"; choose one of the folders inside it, or first give the "
                                  "simulator folder.");
        return;
    }
    invalid_dir.setText(chosen.filename().string());
}

void Form4::Form_Unload()
{
    if (!m_main.saveini(m_session.state.nmenu))
        return;
    m_main.loadini(m_session.state.nmenu);
}

} // namespace quillet
