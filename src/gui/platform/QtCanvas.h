#pragma once

#include "platform/Canvas.h"

#include <QFont>
#include <QImage>

#include <functional>

namespace quillet {

// A picture box drawn into an image, the way the old toolkit drew on a window's device context:
// no antialiasing, one-pixel lines, a real flood fill.
class QtCanvas final : public Canvas {
public:
    QtCanvas(double widthTwips, double heightTwips, Rgb background = {255, 255, 255});

    const QImage& image() const { return m_image; }
    // Called after every drawing operation, so that the widget showing the image can repaint.
    std::function<void()> onChanged;

protected:
    void doClear() override;
    void doLine(double x1, double y1, double x2, double y2, Rgb colour) override;
    void doBox(double x1, double y1, double x2, double y2, Rgb outline) override;
    void doCircle(double cx, double cy, double radius, Rgb outline) override;
    void doFloodFill(int px, int py) override;
    void doText(double x, double y, std::string_view text) override;
    double textWidthPixels(std::string_view text) override;
    double textHeightPixels(std::string_view text) override;
    void fontChanged() override;

private:
    QBrush fillBrush() const;
    void changed();

    QImage m_image;
    QColor m_background;
    QFont m_font;
};

} // namespace quillet
