#pragma once

#include "Converter.h"
#include "Form4.h"
#include "FormRegistry.h"
#include "load/Session.h"
#include "platform/Controls.h"

#include <filesystem>
#include <string>

namespace quillet {

struct PictureState {
    bool visible = true;
    std::filesystem::path file; // empty: no picture
};

// The main window: the list of active aircraft types, the selected type's picture and the summary of
// its last saved load, the converter, and the way to the configuration dialog and the load forms.
class Form1 {
public:
    static constexpr const char* kCaption = "Quillet Manager";
    static constexpr const char* kListHint = "Use configure to set aircraft directories";

    Form1(Session& session, FormRegistry& forms);
    Form1(const Form1&) = delete;
    Form1& operator=(const Form1&) = delete;

    ComboState Combo1{kListHint};
    PictureState PicDHC{false, {}};
    LabelState lblbow;
    LabelState lblpax;
    LabelState lblmf;
    LabelState lbltot;
    Converter converter;
    bool visible = true;
    bool aboutVisible = false;
    bool form2Visible = false;
    // Set when the main window is closed: the program ends.
    bool ended = false;

    // The configuration dialog, loaded on first use.
    Form4& form4() { return m_form4.loaded(); }
    // The dialog as it stands, without loading it.
    Form4& form4Window() { return m_form4; }

    void Form_Load();
    void Combo1_Click();
    void Combo1_Scroll();
    void Combo1_Validate();
    void Command2_Click();
    void mnuconfigair_Click();
    void munver_Click();
    void mnucopyright_Click();
    void Form_Unload();

    // Sets the selected type up, reads its last saved load and shows its summary.
    void refresh();

    // Reads quillet.ini into the menu; count receives the number of entries.
    void loadini(int& count);
    // Writes quillet.ini from the menu's first count entries; false (and the user told) on failure.
    bool saveini(int count);

    // The load form of the selected type, or nullptr.
    LoadForm* selectedForm();

private:
    Session& m_session;
    FormRegistry& m_forms;
    Form4 m_form4;
};

} // namespace quillet
