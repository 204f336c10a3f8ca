#pragma once

#include "shell/LoadForm.h"

#include <QObject>
#include <QRect>
#include <functional>
#include <vector>

class QAccessibleInterface;
class QWidget;

namespace quillet {

class PictureBox;

// Makes the picture a load form is loaded on (a cabin, a seat map, the decks) usable without a mouse.
// The picture takes the focus with Tab; Left and Right, Home and End move a focus mark along the
// form's stations, Up and Down across the cabin; Enter or Space clicks the marked station, Shift+Enter or the
// menu key right-clicks it. Screen readers see every station as a button inside the picture, named with its
// load, which they can press and focus. The stations, their order and what a press does are the form's.
//
//     new StationFocus(decks, form, [this](const auto& handler) { m_app.handle(handler); });
class StationFocus : public QObject {
    Q_OBJECT
public:
    using Runner = std::function<void(const std::function<void()>&)>;

    // `run` runs a handler of the form the way the window runs every event.
    StationFocus(PictureBox* picture, LoadForm& form, Runner run);
    ~StationFocus() override;

    // The focus helper of a picture, or nullptr.
    static StationFocus* of(const QObject* picture);

    PictureBox* picture() const { return m_picture; }
    std::vector<FocusStation> stations() const { return m_form.focusStations(); }
    // The marked station's place in stations().
    int current() const { return m_current; }
    // Marks a station and tells screen readers it has the focus.
    void setCurrent(int position);
    // A click of Button (1 left, 2 right) on the station at that place.
    void press(int position, int Button);
    // What a screen reader hears of the station at that place.
    QString spokenName(int position) const;
    // The marked outline of the station at that place, in pixels of the picture.
    QRect markRect(int position) const;
    QRect markRect(const FocusStation& station) const;

    // The stations as accessible children of the picture, made when first asked for.
    QAccessibleInterface* child(int position);
    int childCount() const { return static_cast<int>(stations().size()); }
    int indexOfChild(const QAccessibleInterface* child) const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Up (-1) or down (1) on the picture.
    void moveAcross(int direction);
    void showMark();
    void announce(int position, int eventType);

    PictureBox* m_picture;
    LoadForm& m_form;
    Runner m_run;
    QWidget* m_mark;
    int m_current = 0;
    std::vector<QAccessibleInterface*> m_children;
};

} // namespace quillet
