#include "RegionalWindow.h"

#include "platform/Accessibility.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "regional/RegionalForm.h"
#include "shell/Application.h"

#include <QFocusEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace quillet {

namespace {

// A hot spot: a transparent label without caption; a press on it edits its station.
class HotSpotLabel : public QLabel {
public:
    HotSpotLabel(QWidget* parent, std::function<void()> onPress)
        : QLabel(parent), m_onPress(std::move(onPress))
    {
    }

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton)
            m_onPress();
    }

private:
    std::function<void()> m_onPress;
};

} // namespace

// A station's marker: a green filled circle on a seat, a green cross-hatched rounded box on a hold.
class MarkerWidget : public QWidget {
public:
    MarkerWidget(QWidget* parent, const Marker& marker) : QWidget(parent), m_marker(marker)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_TranslucentBackground);
        place(this, marker.rect);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QColor fill = toQColor(m_marker.fillColor);
        const QRectF box = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
        if (m_marker.kind == MarkerKind::Circle) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setPen(fill);
            painter.setBrush(fill);
            painter.drawEllipse(box);
        } else {
            painter.setPen(QPen(fill, 1));
            painter.setBrush(QBrush(fill, Qt::DiagCrossPattern));
            painter.drawRoundedRect(box, 6, 6);
        }
    }

private:
    Marker m_marker;
};

RegionalWindow::RegionalWindow(RegionalForm& form, Application& app)
    : RegionalLoadWindow(form, app), m_regional(form)
{
    const RegionalType& type = form.type();
    PictureBox* cabin = pictureBox(type.layout.cabinName, type.layout.cabin,
                                   QStringLiteral("Cabin of the ") + latin(type.type));
    nameForScreenReaders(cabin, {}, QStringLiteral("Click a seat or a hold to load or empty it"));
    cabin->setCanvas(dynamic_cast<QtCanvas*>(&form.cabin()));
    // Markers under the hot spots, so that every press reaches a hot spot.
    for (const Marker& marker : form.Shape1) {
        auto* widget = new MarkerWidget(cabin, marker);
        widget->setObjectName(QStringLiteral("Shape1(%1)").arg(m_markers.size()));
        m_markers.push_back(widget);
    }
    for (std::size_t i = 0; i < form.location.size(); ++i) {
        const int station = static_cast<int>(i);
        auto* spot = new HotSpotLabel(cabin, [this, station] {
            forward("Click", [this, station] { m_regional.location_Click(station); });
        });
        spot->setObjectName(QStringLiteral("location(%1)").arg(station));
        // Its tool tip, read as the description, tells the station's load.
        nameForScreenReaders(spot, latin(type.stations[i].name));
        place(spot, form.location[i].rect);
        m_hotSpots.push_back(spot);
    }
    loadByKeyboard(cabin);

    sync();
}

void RegionalWindow::sync()
{
    RegionalLoadWindow::sync();
    for (std::size_t i = 0; i < m_hotSpots.size() && i < m_regional.location.size(); ++i)
        m_hotSpots[i]->setToolTip(toQString(m_regional.location[i].tooltip));
    for (std::size_t i = 0; i < m_markers.size() && i < m_regional.Shape1.size(); ++i)
        m_markers[i]->setVisible(m_regional.Shape1[i].visible);
}

void RegionalWindow::focusOutEvent(QFocusEvent* event)
{
    // Only the form itself losing the focus counts, as in the toolkit the forms were designed for;
    // its picture boxes take the focus when clicked, so this seldom happens.
    if (m_regional.type().refreshesMainOnLostFocus && m_regional.visible)
        m_app.handle([this] { m_regional.Form_LostFocus(); });
    RegionalLoadWindow::focusOutEvent(event);
}

} // namespace quillet
