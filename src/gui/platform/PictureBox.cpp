#include "PictureBox.h"

#include "QtCanvas.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

namespace quillet {

namespace {

// Screen readers would list a plain widget as a "filler"; a picture box is a graphic.
QAccessibleInterface* pictureBoxAccessible(const QString& className, QObject* object)
{
    if (className == QLatin1String(PictureBox::staticMetaObject.className()) && object->isWidgetType())
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Graphic);
    return nullptr;
}

} // namespace

PictureBox::PictureBox(QWidget* parent) : QWidget(parent)
{
    static const bool announced = (QAccessible::installFactory(pictureBoxAccessible), true);
    (void)announced;
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
}

void PictureBox::setCanvas(QtCanvas* canvas)
{
    m_canvas = canvas;
    if (m_canvas)
        m_canvas->onChanged = [this] { update(); };
    update();
}

void PictureBox::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    update();
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    if (m_canvas)
        painter.drawImage(0, 0, m_canvas->image()); // drawn at the screen's pixel ratio, shown 1:1
    if (!m_picture.isNull()) {
        // A picture larger than its box is scaled down smoothly to fit, keeping its proportions.
        const QSizeF natural = m_picture.deviceIndependentSize();
        QSizeF shown = natural;
        if (natural.width() > width() || natural.height() > height())
            shown = natural.scaled(size(), Qt::KeepAspectRatio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRectF(QPointF(0, 0), shown), m_picture, QRectF(m_picture.rect()));
    }
    if (m_border) {
        painter.setPen(palette().color(QPalette::Dark));
        painter.drawLine(0, 0, width() - 1, 0);
        painter.drawLine(0, 0, 0, height() - 1);
        painter.setPen(palette().color(QPalette::Light));
        painter.drawLine(width() - 1, 0, width() - 1, height() - 1);
        painter.drawLine(0, height() - 1, width() - 1, height() - 1);
    }
}

void PictureBox::mousePressEvent(QMouseEvent* event)
{
    if (onMouseDown)
        onMouseDown(event->button(), event->position().x() * 15.0, event->position().y() * 15.0);
}

void PictureBox::mouseMoveEvent(QMouseEvent* event)
{
    if (onMouseMove)
        onMouseMove(event->buttons(), event->position().x() * 15.0, event->position().y() * 15.0);
}

int buttonNumber(Qt::MouseButton button)
{
    switch (button) {
    case Qt::LeftButton:
        return 1;
    case Qt::RightButton:
        return 2;
    case Qt::MiddleButton:
        return 4;
    default:
        return 0;
    }
}

} // namespace quillet
