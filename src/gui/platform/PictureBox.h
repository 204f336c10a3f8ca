#pragma once

#include <QPixmap>
#include <QWidget>

#include <functional>

namespace quillet {

class QtCanvas;

// A picture box: shows what was drawn on its canvas, or a picture loaded from a file, with a thin
// sunken border like the old toolkit's. Mouse presses and moves are reported in twips.
class PictureBox : public QWidget {
    Q_OBJECT
public:
    explicit PictureBox(QWidget* parent = nullptr);

    void setCanvas(QtCanvas* canvas);
    QtCanvas* canvas() const { return m_canvas; }
    void setPicture(const QPixmap& picture);
    const QPixmap& picture() const { return m_picture; }
    void setBorder(bool border) { m_border = border; }

    std::function<void(Qt::MouseButton button, double xTwips, double yTwips)> onMouseDown;
    std::function<void(Qt::MouseButtons buttons, double xTwips, double yTwips)> onMouseMove;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    QtCanvas* m_canvas = nullptr;
    QPixmap m_picture;
    bool m_border = true;
};

// The button number the forms' mouse handlers take: 1 left, 2 right, 4 middle.
int buttonNumber(Qt::MouseButton button);

} // namespace quillet
