#pragma once

#include "platform/Canvas.h"
#include "platform/DrawOp.h"

#include <QFont>
#include <QFontMetricsF>
#include <QImage>
#include <cmath>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quillet {

// A picture box drawn into an image, the way the old toolkit drew on a window's device context:
// one-pixel lines, filled shapes and a real flood fill, set pixel by pixel, and text drawn by Qt.
// Every pointer movement over a deck redraws the whole picture, so the shapes are rasterised here
// directly, each text is rendered once and then copied, and a drawing marked as repeated is kept
// and put back whole when it comes again the same.
class QtCanvas final : public Canvas {
public:
    // `pixelRatio` is the screen's device pixel ratio: the image has that many pixels to each of the
    // picture's pixels, so that lines and text stay sharp on a high-density screen. Positions, sizes
    // and flood-fill seeds still come in the picture's own pixels (15 twips each).
    QtCanvas(double widthTwips, double heightTwips, Rgb background = {255, 255, 255},
             double pixelRatio = 1.0);

    // Carries the pixel ratio, so that it is drawn at the picture's size.
    const QImage& image()
    {
        drawDeferred();
        return m_image;
    }
    double pixelRatio() const { return m_ratio; }
    // Called after every drawing operation, so that the widget showing the image can repaint.
    std::function<void()> onChanged;

protected:
    void doClear() override;
    void doKeepAsBackground() override;
    void doMarkRepeated() override;
    void doLine(double x1, double y1, double x2, double y2, Rgb colour) override;
    void doBox(double x1, double y1, double x2, double y2, Rgb outline) override;
    void doCircle(double cx, double cy, double radius, Rgb outline) override;
    void doFloodFill(int px, int py) override;
    void doText(double x, double y, std::string_view text) override;
    double textWidthPixels(std::string_view text) override;
    double textHeightPixels(std::string_view text) override;
    void fontChanged() override;

private:
    void changed();
    // The picture's background, before anything is drawn on it.
    void erase();
    // Holds the operation back when a repeated drawing is being compared; false when it is to be
    // drawn now.
    bool heldBack(DrawOp::Kind kind, double a, double b, double c = 0, double d = 0, Rgb colour = {},
                  std::string_view text = {});
    // Draws what was held back since the last clear, on a fresh background.
    void drawDeferred();
    void replay(const std::vector<DrawOp>& ops);
    void drawLine(double x1, double y1, double x2, double y2, Rgb colour);
    void drawBox(double x1, double y1, double x2, double y2, Rgb outline);
    void drawCircle(double cx, double cy, double radius, Rgb outline);
    void drawFloodFill(int px, int py);
    void drawText(double x, double y, std::string_view text);
    // Pixels are written straight into the image; a drawing operation first takes its rows.
    void takeRows();
    QRgb* row(int y) { return m_bits + static_cast<std::ptrdiff_t>(y) * m_stride; }
    void plot(int x, int y, QRgb colour)
    {
        if (x >= 0 && y >= 0 && x < m_width && y < m_height)
            row(y)[x] = colour;
    }
    // A coordinate of the picture's pixels as an image pixel.
    int device(double v) const { return static_cast<int>(std::floor(v * m_ratio)); }
    void span(int left, int right, int y, QRgb colour);
    void fillSpan(int left, int right, int y);
    // A text in the current font, measured and rendered once: its advance and the coverage of
    // every pixel it touches.
    struct RenderedText {
        double width = 0;
        struct Dot {
            int x;
            int y;
            int alpha;
        };
        std::vector<Dot> dots;
    };
    const RenderedText& rendered(std::string_view text);

    double m_ratio = 1.0;
    int m_hatchPeriod = 8; // image pixels between the lines of a diagonal cross fill
    QImage m_image;
    QImage m_backgroundImage; // null until a background is kept
    QRgb* m_bits = nullptr;
    std::ptrdiff_t m_stride = 0;
    int m_width = 0;
    int m_height = 0;
    QColor m_background;
    QFont m_font;
    std::optional<QFontMetricsF> m_metrics;
    std::unordered_map<std::string, RenderedText> m_texts;
    std::vector<std::uint8_t> m_floodScratch;
    // Once a drawing is marked as repeated, every clear holds the drawing back until the mark.
    bool m_repeats = false;
    bool m_deferring = false;
    std::vector<DrawOp> m_heldBack; // since the last clear
    std::vector<DrawOp> m_keptOps;
    QImage m_keptImage; // the picture m_keptOps drew
};

} // namespace quillet
