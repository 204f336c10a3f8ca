#include "CRJ200Window.h"

#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "regional/CRJ200.h"
#include "shell/Application.h"

namespace quillet {

CRJ200Window::CRJ200Window(CRJ200& form, Application& app) : RegionalLoadWindow(form, app)
{
    const RegionalLayout& layout = form.type().layout;
    PictureBox* map = pictureBox(layout.cabinName, layout.cabin, QStringLiteral("Seat map"));
    map->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture2()));
    map->onMouseDown = [this, &form](Qt::MouseButton button, double x, double y) {
        forward("Click", [&form, button, x, y] { form.Picture2_MouseDown(buttonNumber(button), 0, x, y); });
    };
    map->onMouseMove = [this, &form](Qt::MouseButtons, double x, double y) {
        m_app.handle([&form, x, y] { form.Picture2_MouseMove(0, 0, x, y); });
    };
    loadByKeyboard(map);

    sync();
}

} // namespace quillet
