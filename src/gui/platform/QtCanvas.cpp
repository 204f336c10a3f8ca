#include "QtCanvas.h"

#include "Twips.h"
#include "platform/FloodFill.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

// 96 dots per inch, so that point sizes come out as on the screens the layouts were made for.
constexpr int kDotsPerMetre = 3780;
// Labels carry weights, so their texts vary; the cache is dropped when it grows past this.
constexpr std::size_t kRenderedTextsKept = 512;

QRgb toQRgb(Rgb colour)
{
    return qRgb(colour.r, colour.g, colour.b);
}

int pixel(double v)
{
    return static_cast<int>(std::floor(v));
}

} // namespace

QtCanvas::QtCanvas(double widthTwips, double heightTwips, Rgb background, double pixelRatio)
    : Canvas(twipsToPixels(widthTwips), twipsToPixels(heightTwips)),
      m_ratio(pixelRatio > 0 ? pixelRatio : 1.0),
      m_hatchPeriod(std::max(8, static_cast<int>(std::lround(8 * m_ratio)))),
      m_image(std::max(1, static_cast<int>(std::ceil(twipsToPixels(widthTwips) * m_ratio))),
              std::max(1, static_cast<int>(std::ceil(twipsToPixels(heightTwips) * m_ratio))),
              QImage::Format_RGB32),
      m_background(toQColor(background))
{
    // Text is measured at 96 dots per inch whatever the ratio, so that layouts come out the same.
    m_image.setDotsPerMeterX(kDotsPerMetre);
    m_image.setDotsPerMeterY(kDotsPerMetre);
    m_image.setDevicePixelRatio(m_ratio);
    m_image.fill(m_background);
    takeRows();
    fontChanged();
}

void QtCanvas::changed()
{
    if (onChanged)
        onChanged();
}

void QtCanvas::takeRows()
{
    // bits() detaches the image should the widget have kept a shared copy of it.
    m_bits = reinterpret_cast<QRgb*>(m_image.bits());
    m_stride = m_image.bytesPerLine() / static_cast<std::ptrdiff_t>(sizeof(QRgb));
    m_width = m_image.width();
    m_height = m_image.height();
}

void QtCanvas::span(int left, int right, int y, QRgb colour)
{
    if (y < 0 || y >= m_height)
        return;
    left = std::max(left, 0);
    right = std::min(right, m_width - 1);
    QRgb* line = row(y);
    for (int x = left; x <= right; ++x)
        line[x] = colour;
}

void QtCanvas::fillSpan(int left, int right, int y)
{
    if (fillStyle() == FillStyle::Transparent || y < 0 || y >= m_height)
        return;
    const QRgb colour = toQRgb(fillColor());
    left = std::max(left, 0);
    right = std::min(right, m_width - 1);
    if (left > right)
        return;
    QRgb* line = row(y);
    if (fillStyle() == FillStyle::Solid) {
        std::fill(line + left, line + right + 1, colour);
        return;
    }
    // The diagonal cross of the old toolkit, its period grown with the pixel ratio so that the hatch
    // keeps its spacing on the screen with lines one image pixel wide. Only the pixels on its two
    // diagonals are visited: large holds are hatched at every pointer movement.
    const int period = m_hatchPeriod;
    const auto mod = [period](int v) { return ((v % period) + period) % period; };
    for (int x = left + mod(-(left + y)); x <= right; x += period)
        line[x] = colour;
    for (int x = left + mod(y - left); x <= right; x += period)
        line[x] = colour;
}

void QtCanvas::erase()
{
    if (m_backgroundImage.isNull())
        m_image.fill(m_background);
    else
        m_image = m_backgroundImage; // shared until the next drawing takes its rows
}

void QtCanvas::doClear()
{
    if (m_repeats) {
        m_deferring = true;
        m_heldBack.clear();
        return;
    }
    erase();
    changed();
}

void QtCanvas::doKeepAsBackground()
{
    drawDeferred();
    m_backgroundImage = m_image;
    m_keptOps.clear();
    m_keptImage = QImage();
}

void QtCanvas::doMarkRepeated()
{
    if (!m_deferring) {
        // From the next clear on, drawings are held back and compared with the one kept.
        m_repeats = true;
        return;
    }
    m_deferring = false;
    if (!m_keptImage.isNull() && m_heldBack == m_keptOps) {
        m_image = m_keptImage; // shared until the next drawing takes its rows
    } else {
        erase();
        replay(m_heldBack);
        m_keptOps.swap(m_heldBack);
        m_keptImage = m_image;
    }
    changed();
}

bool QtCanvas::heldBack(DrawOp::Kind kind, double a, double b, double c, double d, Rgb colour,
                        std::string_view text)
{
    if (!m_deferring)
        return false;
    DrawOp& op = m_heldBack.emplace_back();
    op.kind = kind;
    op.x1 = a;
    op.y1 = b;
    (kind == DrawOp::Kind::Circle ? op.radius : op.x2) = c;
    op.y2 = d;
    op.colour = colour;
    op.fillStyle = fillStyle();
    op.fillColor = fillColor();
    op.foreColor = foreColor();
    op.text = text;
    op.fontSize = fontSize();
    op.bold = fontBold();
    return true;
}

void QtCanvas::drawDeferred()
{
    if (!m_deferring)
        return;
    m_deferring = false;
    erase();
    replay(m_heldBack);
    changed();
}

void QtCanvas::replay(const std::vector<DrawOp>& ops)
{
    const FillStyle style = fillStyle();
    const Rgb fill = fillColor();
    const Rgb fore = foreColor();
    const double size = fontSize();
    const bool bold = fontBold();
    for (const DrawOp& op : ops) {
        setFillStyle(op.fillStyle);
        setFillColor(op.fillColor);
        setForeColor(op.foreColor);
        if (op.fontSize != fontSize() || op.bold != fontBold())
            setFont(op.fontSize, op.bold);
        switch (op.kind) {
        case DrawOp::Kind::Clear:
            break;
        case DrawOp::Kind::Line:
            drawLine(op.x1, op.y1, op.x2, op.y2, op.colour);
            break;
        case DrawOp::Kind::Box:
            drawBox(op.x1, op.y1, op.x2, op.y2, op.colour);
            break;
        case DrawOp::Kind::Circle:
            drawCircle(op.x1, op.y1, op.radius, op.colour);
            break;
        case DrawOp::Kind::FloodFill:
            drawFloodFill(static_cast<int>(op.x1), static_cast<int>(op.y1));
            break;
        case DrawOp::Kind::Text:
            drawText(op.x1, op.y1, op.text);
            break;
        }
    }
    setFillStyle(style);
    setFillColor(fill);
    setForeColor(fore);
    if (size != fontSize() || bold != fontBold())
        setFont(size, bold);
}

void QtCanvas::doLine(double x1, double y1, double x2, double y2, Rgb colour)
{
    if (heldBack(DrawOp::Kind::Line, x1, y1, x2, y2, colour))
        return;
    drawLine(x1, y1, x2, y2, colour);
    changed();
}

void QtCanvas::doBox(double x1, double y1, double x2, double y2, Rgb outline)
{
    if (heldBack(DrawOp::Kind::Box, x1, y1, x2, y2, outline))
        return;
    drawBox(x1, y1, x2, y2, outline);
    changed();
}

void QtCanvas::doCircle(double cx, double cy, double radius, Rgb outline)
{
    if (heldBack(DrawOp::Kind::Circle, cx, cy, radius, 0, outline))
        return;
    drawCircle(cx, cy, radius, outline);
    changed();
}

void QtCanvas::doFloodFill(int px, int py)
{
    if (heldBack(DrawOp::Kind::FloodFill, px, py))
        return;
    drawFloodFill(px, py);
    changed();
}

void QtCanvas::doText(double x, double y, std::string_view text)
{
    if (heldBack(DrawOp::Kind::Text, x, y, 0, 0, {}, text))
        return;
    drawText(x, y, text);
    changed();
}

void QtCanvas::drawLine(double x1, double y1, double x2, double y2, Rgb colour)
{
    takeRows();
    // Bresenham, both ends included.
    int x = device(x1);
    int y = device(y1);
    const int xEnd = device(x2);
    const int yEnd = device(y2);
    const int dx = std::abs(xEnd - x);
    const int dy = -std::abs(yEnd - y);
    const int stepX = x < xEnd ? 1 : -1;
    const int stepY = y < yEnd ? 1 : -1;
    const QRgb pen = toQRgb(colour);
    int error = dx + dy;
    for (;;) {
        plot(x, y, pen);
        if (x == xEnd && y == yEnd)
            break;
        const int twice = 2 * error;
        if (twice >= dy) {
            error += dy;
            x += stepX;
        }
        if (twice <= dx) {
            error += dx;
            y += stepY;
        }
    }
}

void QtCanvas::drawBox(double x1, double y1, double x2, double y2, Rgb outline)
{
    takeRows();
    const int left = std::min(device(x1), device(x2));
    const int right = std::max(device(x1), device(x2));
    const int top = std::min(device(y1), device(y2));
    const int bottom = std::max(device(y1), device(y2));
    for (int y = top + 1; y < bottom; ++y)
        fillSpan(left + 1, right - 1, y);
    const QRgb pen = toQRgb(outline);
    span(left, right, top, pen);
    span(left, right, bottom, pen);
    for (int y = top + 1; y < bottom; ++y) {
        plot(left, y, pen);
        plot(right, y, pen);
    }
}

void QtCanvas::drawCircle(double cx, double cy, double radius, Rgb outline)
{
    takeRows();
    cx *= m_ratio;
    cy *= m_ratio;
    radius *= m_ratio;
    // The pixels whose centres lie within the radius, as one run per row; a pixel at a run's end or
    // beyond the runs of the rows above or below is on the outline.
    const int top = pixel(cy - radius);
    const int bottom = pixel(cy + radius);
    std::vector<std::pair<int, int>> runs;
    runs.reserve(static_cast<std::size_t>(bottom - top + 3));
    const auto runOf = [&](int y) -> std::pair<int, int> {
        const double dy = y + 0.5 - cy;
        const double reach = radius * radius - dy * dy;
        if (reach < 0)
            return {1, 0};
        const double half = std::sqrt(reach);
        return {static_cast<int>(std::ceil(cx - half - 0.5)), static_cast<int>(std::floor(cx + half - 0.5))};
    };
    for (int y = top - 1; y <= bottom + 1; ++y)
        runs.push_back(runOf(y));

    const QRgb pen = toQRgb(outline);
    for (int y = top; y <= bottom; ++y) {
        const auto [left, right] = runs[static_cast<std::size_t>(y - top + 1)];
        if (left > right)
            continue;
        const auto [upLeft, upRight] = runs[static_cast<std::size_t>(y - top)];
        const auto [downLeft, downRight] = runs[static_cast<std::size_t>(y - top + 2)];
        const int innerLeft = std::max({left + 1, upLeft, downLeft});
        const int innerRight = std::min({right - 1, upRight, downRight});
        if (innerLeft <= innerRight) {
            fillSpan(innerLeft, innerRight, y);
            span(left, innerLeft - 1, y, pen);
            span(innerRight + 1, right, y, pen);
        } else {
            span(left, right, y, pen);
        }
    }
}

void QtCanvas::drawFloodFill(int px, int py)
{
    takeRows();
    const QRgb border = toQRgb(foreColor()) & 0xFFFFFF;
    floodRuns(
        m_width, m_height, device(px + 0.5), device(py + 0.5),
        [this, border](int x, int y) { return (row(y)[x] & 0xFFFFFF) == border; },
        [this](int left, int right, int y) { fillSpan(left, right, y); }, m_floodScratch);
}

const QtCanvas::RenderedText& QtCanvas::rendered(std::string_view text)
{
    std::string key = std::to_string(fontSize()) + (fontBold() ? "B|" : "|");
    key += text;
    if (auto found = m_texts.find(key); found != m_texts.end())
        return found->second;
    if (m_texts.size() >= kRenderedTextsKept)
        m_texts.clear();

    RenderedText result;
    const QString words = toQString(std::string(text));
    result.width = m_metrics->horizontalAdvance(words);
    const int width = static_cast<int>(std::ceil((result.width + 2) * m_ratio));
    const int height = static_cast<int>(std::ceil((m_metrics->height() + 1) * m_ratio));
    QImage coverage(std::max(1, width), std::max(1, height), QImage::Format_Alpha8);
    coverage.setDotsPerMeterX(kDotsPerMetre);
    coverage.setDotsPerMeterY(kDotsPerMetre);
    coverage.setDevicePixelRatio(m_ratio); // rendered at the image's resolution
    coverage.fill(0);
    {
        QPainter painter(&coverage);
        painter.setFont(m_font);
        painter.setPen(Qt::black);
        painter.drawText(QPointF(0, m_metrics->ascent()), words);
    }
    for (int y = 0; y < coverage.height(); ++y) {
        const uchar* alpha = coverage.constScanLine(y);
        for (int x = 0; x < coverage.width(); ++x) {
            if (alpha[x] != 0)
                result.dots.push_back({x, y, alpha[x]});
        }
    }
    return m_texts.emplace(std::move(key), std::move(result)).first->second;
}

void QtCanvas::drawText(double x, double y, std::string_view text)
{
    takeRows();
    const RenderedText& words = rendered(text);
    const QRgb fore = toQRgb(foreColor());
    const int left = device(x);
    const int top = device(y);
    for (const RenderedText::Dot& dot : words.dots) {
        const int tx = left + dot.x;
        const int ty = top + dot.y;
        if (tx < 0 || ty < 0 || tx >= m_width || ty >= m_height)
            continue;
        QRgb& under = row(ty)[tx];
        const int a = dot.alpha;
        const auto mix = [a](int from, int to) { return (from * (255 - a) + to * a + 127) / 255; };
        under = qRgb(mix(qRed(under), qRed(fore)), mix(qGreen(under), qGreen(fore)),
                     mix(qBlue(under), qBlue(fore)));
    }
}

double QtCanvas::textWidthPixels(std::string_view text)
{
    return rendered(text).width;
}

double QtCanvas::textHeightPixels(std::string_view)
{
    return m_metrics->height();
}

void QtCanvas::fontChanged()
{
    m_font = QFont(QStringLiteral("Arial"));
    m_font.setPointSizeF(fontSize());
    m_font.setBold(fontBold());
    m_metrics.emplace(m_font, &m_image);
}

} // namespace quillet
