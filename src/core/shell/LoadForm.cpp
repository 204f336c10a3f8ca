#include "LoadForm.h"

namespace quillet {

void LoadForm::Form_Unload()
{
    runSummary();
    visible = false;
    m_session.refreshMain();
    m_session.showMain();
}

} // namespace quillet
