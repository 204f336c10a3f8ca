#pragma once

#include "load/Session.h"
#include "platform/Controls.h"

#include <filesystem>
#include <string>

namespace quillet {

class Form1;

// The configuration dialog: the simulator folder and the aircraft folder of each menu entry.
// It behaves like a form of the old toolkit: the first use of any of its controls loads it (controls
// back at their initial values, then Form_Load), and closing it unloads it.
class Form4 {
public:
    static constexpr const char* kCaption = "Quillet - Configure";

    Form4(Session& session, Form1& main);
    Form4(const Form4&) = delete;
    Form4& operator=(const Form4&) = delete;

    // Loads the dialog if it is not loaded; every use of its controls from outside goes through it.
    Form4& loaded();
    bool isLoaded() const { return m_loaded; }
    // Closing the window: Form_Unload, then the dialog is unloaded and hidden.
    void close();

    ComboState Combo1;
    TextBoxState Valid_dir;
    ComboState Combo2;
    TextBoxState invalid_dir;
    bool Command1_visible = false; // "Add"
    TextBoxState simdir;
    bool Check2 = false;
    bool visible = false;

    void Form_Load();
    void Combo1_Click();
    void invalid_dir_Change();
    void Command1_Click();
    void simdir_Change();
    void Form_Unload();

    // The folder picker beside the two folder boxes: where it opens, and the folder chosen, which
    // fills the box as if typed. An aircraft folder must lie in the simulator's aircraft folder;
    // its name is what the box takes.
    std::filesystem::path simulatorPickerStart() const;
    std::filesystem::path aircraftPickerStart() const;
    void simulatorFolderChosen(const std::filesystem::path& folder);
    void aircraftFolderChosen(const std::filesystem::path& folder);

private:
    void reset();
    void showFolderOfActive();

    Session& m_session;
    Form1& m_main;
    bool m_loaded = false;
};

} // namespace quillet
