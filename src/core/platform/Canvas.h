#pragma once

#include "Rgb.h"

#include <string_view>

namespace quillet {

enum class FillStyle { Solid, Transparent, DiagonalCross };
enum class ScaleMode { Twips, Pixels };

inline constexpr double kTwipsPerPixel = 15.0;

// A picture box to draw on. It keeps the drawing state of the old toolkit (fill style and colour,
// fore colour, font, current text position, scale mode); coordinates are in the current scale mode,
// twips unless switched to pixels.
class Canvas {
public:
    Canvas(int widthPixels, int heightPixels) : m_widthPixels(widthPixels), m_heightPixels(heightPixels) {}
    virtual ~Canvas() = default;
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    // Erases the picture to its background and puts the text position back at the top left.
    void clear();
    // Keeps what is drawn now as the picture's background picture, which clear() restores from then
    // on: a seat map drawn once under markers that come and go.
    void keepAsBackground() { doKeepAsBackground(); }
    // Marks what has been drawn since clear() as a drawing that comes back the same at most redraws
    // (a deck under a moving pointer): a canvas may keep that picture and skip drawing it again.
    void markRepeated() { doMarkRepeated(); }
    void line(double x1, double y1, double x2, double y2, Rgb colour);
    // A rectangle with a one-pixel outline, filled with the current fill style and colour.
    void box(double x1, double y1, double x2, double y2, Rgb outline);
    // A circle with a one-pixel outline, filled with the current fill style and colour.
    void circle(double cx, double cy, double radius, Rgb outline);
    // Fills the area around the given device pixel that is bounded by the fore colour, with the
    // current fill style and colour (what GDI's FloodFill does on the picture's device context).
    void floodFill(int px, int py);
    // Prints the text at the current position in the fore colour and font, then moves the
    // position to the start of the next line.
    void print(std::string_view text);
    double textWidth(std::string_view text);
    double textHeight(std::string_view text);

    void setFillStyle(FillStyle style) { m_fillStyle = style; }
    FillStyle fillStyle() const { return m_fillStyle; }
    void setFillColor(Rgb colour) { m_fillColor = colour; }
    Rgb fillColor() const { return m_fillColor; }
    void setForeColor(Rgb colour) { m_foreColor = colour; }
    Rgb foreColor() const { return m_foreColor; }
    void setFont(double sizePoints, bool bold);
    double fontSize() const { return m_fontSize; }
    bool fontBold() const { return m_fontBold; }
    void setCurrentPoint(double x, double y);
    double currentX() const { return m_currentX; }
    double currentY() const { return m_currentY; }
    void setScaleMode(ScaleMode mode);
    ScaleMode scaleMode() const { return m_scaleMode; }

    double scaleWidth() const { return m_widthPixels * unit(); }
    double scaleHeight() const { return m_heightPixels * unit(); }
    int widthPixels() const { return m_widthPixels; }
    int heightPixels() const { return m_heightPixels; }

    // Converts a coordinate of the current scale mode to device pixels.
    double toPixels(double v) const { return v / unit(); }

protected:
    // The drawing itself, in device pixels; the state above tells how.
    // Restores the background picture kept last, or a blank picture when none was.
    virtual void doClear() = 0;
    virtual void doKeepAsBackground() = 0;
    virtual void doMarkRepeated() {}
    virtual void doLine(double x1, double y1, double x2, double y2, Rgb colour) = 0;
    virtual void doBox(double x1, double y1, double x2, double y2, Rgb outline) = 0;
    virtual void doCircle(double cx, double cy, double radius, Rgb outline) = 0;
    virtual void doFloodFill(int px, int py) = 0;
    virtual void doText(double x, double y, std::string_view text) = 0;
    // Text extent in device pixels with the current font.
    virtual double textWidthPixels(std::string_view text) = 0;
    virtual double textHeightPixels(std::string_view text) = 0;
    // Lets an implementation follow the font or scale mode as they change.
    virtual void fontChanged() {}
    virtual void scaleModeChanged() {}

private:
    double unit() const { return m_scaleMode == ScaleMode::Twips ? kTwipsPerPixel : 1.0; }

    int m_widthPixels;
    int m_heightPixels;
    FillStyle m_fillStyle = FillStyle::Transparent;
    Rgb m_fillColor = kBlack;
    Rgb m_foreColor = kBlack;
    double m_fontSize = 8.25;
    bool m_fontBold = false;
    double m_currentX = 0;
    double m_currentY = 0;
    ScaleMode m_scaleMode = ScaleMode::Twips;
};

} // namespace quillet
