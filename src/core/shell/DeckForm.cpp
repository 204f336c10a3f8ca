#include "DeckForm.h"

namespace quillet {

DeckForm::DeckForm(Session& session, const DeckLayout& layout)
    : LoadForm(session), m_picture1(session.makeCanvas(layout.Picture1.width, layout.Picture1.height)),
      m_picture4(session.makeCanvas(layout.summary.Picture4.width, layout.summary.Picture4.height)),
      m_picture3(session.makeCanvas(layout.summary.Picture3.width, layout.summary.Picture3.height))
{
}

} // namespace quillet
