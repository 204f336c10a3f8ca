#include "StationFocus.h"

#include "PictureBox.h"
#include "Twips.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QWindow>
#include <algorithm>
#include <cstdlib>

namespace quillet {

namespace {

constexpr int kMarkMargin = 3; // pixels around a station's outline, so the mark clears its dot

// The focus mark: a dashed black line over a white one, seen on the white decks and on a photograph
// alike. It lets the mouse through to the station under it.
class FocusMark : public QWidget {
public:
    explicit FocusMark(QWidget* parent) : QWidget(parent)
    {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setAttribute(Qt::WA_TranslucentBackground);
        setObjectName(QStringLiteral("focusMark"));
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QRectF outline = QRectF(rect()).adjusted(1, 1, -1, -1);
        painter.setPen(QPen(Qt::white, 2));
        painter.drawRect(outline);
        painter.setPen(QPen(Qt::black, 2, Qt::DashLine));
        painter.drawRect(outline);
    }
};

// A station as a screen reader sees it: a button inside the picture, named with its load.
class StationAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    StationAccessible(StationFocus* focus, int position) : m_focus(focus), m_position(position) {}

    bool isValid() const override { return m_focus && m_position < m_focus->childCount(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override
    {
        return m_focus ? m_focus->picture()->window()->windowHandle() : nullptr;
    }
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relations(QAccessible::Relation) const override
    {
        return {};
    }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override
    {
        return m_focus ? QAccessible::queryAccessibleInterface(m_focus->picture()) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text t) const override
    {
        if (!isValid())
            return {};
        if (t == QAccessible::Name)
            return m_focus->spokenName(m_position);
        if (t == QAccessible::Description)
            return QStringLiteral("Enter loads or empties it");
        return {};
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override
    {
        if (!isValid())
            return {};
        const QRect local = m_focus->markRect(m_position);
        return QRect(m_focus->picture()->mapToGlobal(local.topLeft()), local.size());
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override
    {
        QAccessible::State s;
        s.focusable = true;
        s.invalid = !isValid();
        s.focused = isValid() && m_focus->picture()->hasFocus() && m_focus->current() == m_position;
        return s;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction(), showMenuAction(), setFocusAction()}; }
    void doAction(const QString& action) override
    {
        if (!isValid())
            return;
        if (action == pressAction())
            m_focus->press(m_position, 1);
        else if (action == showMenuAction())
            m_focus->press(m_position, 2);
        else if (action == setFocusAction()) {
            m_focus->picture()->setFocus(Qt::OtherFocusReason);
            m_focus->setCurrent(m_position);
        }
    }
    QStringList keyBindingsForAction(const QString& action) const override
    {
        if (action == pressAction())
            return {QStringLiteral("Return"), QStringLiteral("Space")};
        if (action == showMenuAction())
            return {QStringLiteral("Shift+Return"), QStringLiteral("Menu")};
        return {};
    }

private:
    QPointer<StationFocus> m_focus;
    int m_position;
};

// The picture with its stations as children, in the order the keyboard walks them.
class StationPictureAccessible : public QAccessibleWidget {
public:
    StationPictureAccessible(QWidget* picture, StationFocus* focus)
        : QAccessibleWidget(picture, QAccessible::Graphic), m_focus(focus)
    {
    }

    int childCount() const override { return m_focus ? m_focus->childCount() : 0; }
    QAccessibleInterface* child(int index) const override
    {
        return m_focus && index >= 0 && index < m_focus->childCount() ? m_focus->child(index) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return m_focus ? m_focus->indexOfChild(child) : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        if (!m_focus)
            return nullptr;
        const QPoint local = m_focus->picture()->mapFromGlobal(QPoint(x, y));
        const std::vector<FocusStation> walk = m_focus->stations();
        for (std::size_t i = 0; i < walk.size(); ++i) {
            if (m_focus->markRect(walk[i]).contains(local))
                return m_focus->child(static_cast<int>(i));
        }
        return nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        if (!m_focus || !widget()->hasFocus() || m_focus->current() >= m_focus->childCount())
            return nullptr;
        return m_focus->child(m_focus->current());
    }

private:
    QPointer<StationFocus> m_focus;
};

QAccessibleInterface* stationPictureAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String(PictureBox::staticMetaObject.className()))
        return nullptr;
    if (StationFocus* focus = StationFocus::of(object))
        return new StationPictureAccessible(static_cast<QWidget*>(object), focus);
    return nullptr;
}

} // namespace

StationFocus::StationFocus(PictureBox* picture, LoadForm& form, Runner run)
    : QObject(picture), m_picture(picture), m_form(form), m_run(std::move(run)),
      m_mark(new FocusMark(picture))
{
    // Installed after the picture box's own factory, so asked before it.
    static const bool installed = (QAccessible::installFactory(stationPictureAccessible), true);
    (void)installed;
    setObjectName(QStringLiteral("StationFocus"));
    // An interface made for the picture before it had stations would be kept without them.
    QAccessible::deleteAccessibleInterface(
        QAccessible::uniqueId(QAccessible::queryAccessibleInterface(picture)));
    m_picture->setFocusPolicy(Qt::StrongFocus);
    m_picture->installEventFilter(this);
}

StationFocus::~StationFocus()
{
    for (QAccessibleInterface* child : m_children)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(child));
}

StationFocus* StationFocus::of(const QObject* picture)
{
    return picture ? picture->findChild<StationFocus*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

void StationFocus::setCurrent(int position)
{
    const int count = childCount();
    if (count == 0)
        return;
    m_current = std::clamp(position, 0, count - 1);
    showMark();
    if (m_picture->hasFocus())
        announce(m_current, QAccessible::Focus);
}

void StationFocus::press(int position, int Button)
{
    const std::vector<FocusStation> walk = stations();
    if (position < 0 || position >= static_cast<int>(walk.size()))
        return;
    const FocusStation station = walk[static_cast<std::size_t>(position)];
    m_run([this, station, Button] { m_form.pressStation(station, Button); });
    showMark();
    // The station's name carries its load.
    announce(position, QAccessible::NameChanged);
}

QString StationFocus::spokenName(int position) const
{
    const std::vector<FocusStation> walk = stations();
    if (position < 0 || position >= static_cast<int>(walk.size()))
        return {};
    return toQString(m_form.spokenStation(walk[static_cast<std::size_t>(position)].station));
}

QRect StationFocus::markRect(int position) const
{
    const std::vector<FocusStation> walk = stations();
    if (position < 0 || position >= static_cast<int>(walk.size()))
        return {};
    return markRect(walk[static_cast<std::size_t>(position)]);
}

QRect StationFocus::markRect(const FocusStation& station) const
{
    const TwipsRect& mark = station.mark;
    return twipsRect(mark.left, mark.top, mark.width, mark.height)
        .adjusted(-kMarkMargin, -kMarkMargin, kMarkMargin, kMarkMargin);
}

QAccessibleInterface* StationFocus::child(int position)
{
    if (position < 0)
        return nullptr;
    while (static_cast<int>(m_children.size()) <= position) {
        auto* child = new StationAccessible(this, static_cast<int>(m_children.size()));
        QAccessible::registerAccessibleInterface(child);
        m_children.push_back(child);
    }
    return m_children[static_cast<std::size_t>(position)];
}

int StationFocus::indexOfChild(const QAccessibleInterface* child) const
{
    const auto found = std::find(m_children.begin(), m_children.end(), child);
    if (found == m_children.end())
        return -1;
    const int position = static_cast<int>(found - m_children.begin());
    return position < childCount() ? position : -1;
}

bool StationFocus::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_picture)
        return false;
    switch (event->type()) {
    case QEvent::FocusIn:
        setCurrent(m_current);
        break;
    case QEvent::FocusOut:
        m_mark->hide();
        break;
    case QEvent::MouseButtonPress: {
        // The mark follows the mouse, so the keyboard goes on from the station last clicked.
        const QPoint at = static_cast<QMouseEvent*>(event)->position().toPoint();
        const std::vector<FocusStation> walk = stations();
        for (std::size_t i = 0; i < walk.size(); ++i) {
            if (markRect(walk[i]).contains(at)) {
                m_current = static_cast<int>(i);
                showMark();
                break;
            }
        }
        break;
    }
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool shift = key->modifiers() & Qt::ShiftModifier;
        switch (key->key()) {
        case Qt::Key_Right:
            setCurrent(m_current + 1);
            return true;
        case Qt::Key_Left:
            setCurrent(m_current - 1);
            return true;
        case Qt::Key_Up:
            moveAcross(-1);
            return true;
        case Qt::Key_Down:
            moveAcross(1);
            return true;
        case Qt::Key_Home:
            setCurrent(0);
            return true;
        case Qt::Key_End:
            setCurrent(childCount() - 1);
            return true;
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            press(m_current, shift ? 2 : 1);
            return true;
        case Qt::Key_Menu:
            press(m_current, 2);
            return true;
        case Qt::Key_F10:
            if (!shift)
                return false;
            press(m_current, 2);
            return true;
        default:
            return false;
        }
    }
    default:
        break;
    }
    return false;
}

void StationFocus::moveAcross(int direction)
{
    // The nearest station straight above or below on the picture, whichever way the type's table
    // runs across the cabin.
    const std::vector<FocusStation> walk = stations();
    if (m_current >= static_cast<int>(walk.size()))
        return;
    const QRect from = markRect(walk[static_cast<std::size_t>(m_current)]);
    int nearest = -1;
    int nearestDistance = 0;
    for (int i = 0; i < static_cast<int>(walk.size()); ++i) {
        const QRect to = markRect(walk[static_cast<std::size_t>(i)]);
        const int distance = (to.center().y() - from.center().y()) * direction;
        if (distance <= 0 || std::abs(to.center().x() - from.center().x()) > from.width() / 2)
            continue;
        if (nearest < 0 || distance < nearestDistance) {
            nearest = i;
            nearestDistance = distance;
        }
    }
    if (nearest >= 0)
        setCurrent(nearest);
}

void StationFocus::showMark()
{
    const QRect mark = markRect(m_current);
    if (!m_picture->hasFocus() || mark.isNull()) {
        m_mark->hide();
        return;
    }
    m_mark->setGeometry(mark);
    m_mark->raise();
    m_mark->show();
}

void StationFocus::announce(int position, int eventType)
{
    QAccessibleEvent event(m_picture, static_cast<QAccessible::Event>(eventType));
    event.setChild(position);
    QAccessible::updateAccessibility(&event);
}

} // namespace quillet
