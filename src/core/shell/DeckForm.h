#pragma once

#include "platform/Canvas.h"
#include "shell/FormLayout.h"
#include "shell/LoadForm.h"

#include <filesystem>
#include <memory>
#include <string>

namespace quillet {

// A load form whose stations are picked with the mouse on a deck picture drawn by the form: the jet
// form and the DC-10-30F form. One window serves both through this.
class DeckForm : public LoadForm {
public:
    // Mouse buttons as the events report them.
    static constexpr int kLeftButton = 1;
    static constexpr int kRightButton = 2;

    // The deck picture and the two balance pictures are made at the sizes the layout gives them.
    DeckForm(Session& session, const DeckLayout& layout);

    // The drawing scale of the decks, twips per foot, set by the type's set-up.
    int deckscale = 0;
    // The window's caption: the type string once a type is set up.
    std::string caption;
    // The aircraft's picture (Picture2); empty when the file is missing.
    std::filesystem::path photo;
    SummaryLabels labels;

    Canvas& Picture1() { return *m_picture1; }
    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return *m_picture4; }
    Canvas& Picture3() override { return *m_picture3; }

    virtual void Picture1_MouseDown(int Button, int Shift, double X, double Y) = 0;
    virtual void Picture1_MouseMove(int Button, int Shift, double X, double Y) = 0;

private:
    std::unique_ptr<Canvas> m_picture1;
    std::unique_ptr<Canvas> m_picture4;
    std::unique_ptr<Canvas> m_picture3;
};

} // namespace quillet
