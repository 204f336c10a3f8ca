#include "QtCanvas.h"

#include "Twips.h"
#include "platform/FloodFill.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace quillet {

namespace {

// 96 dots per inch, so that point sizes come out as on the screens the layouts were made for.
constexpr int kDotsPerMetre = 3780;

} // namespace

QtCanvas::QtCanvas(double widthTwips, double heightTwips, Rgb background)
    : Canvas(twipsToPixels(widthTwips), twipsToPixels(heightTwips)),
      m_image(std::max(1, twipsToPixels(widthTwips)), std::max(1, twipsToPixels(heightTwips)), QImage::Format_RGB32),
      m_background(toQColor(background))
{
    m_image.setDotsPerMeterX(kDotsPerMetre);
    m_image.setDotsPerMeterY(kDotsPerMetre);
    m_image.fill(m_background);
    fontChanged();
}

void QtCanvas::changed()
{
    if (onChanged)
        onChanged();
}

QBrush QtCanvas::fillBrush() const
{
    switch (fillStyle()) {
    case FillStyle::Solid:
        return QBrush(toQColor(fillColor()));
    case FillStyle::DiagonalCross:
        return QBrush(toQColor(fillColor()), Qt::DiagCrossPattern);
    case FillStyle::Transparent:
        break;
    }
    return Qt::NoBrush;
}

void QtCanvas::doClear()
{
    m_image.fill(m_background);
    changed();
}

void QtCanvas::doLine(double x1, double y1, double x2, double y2, Rgb colour)
{
    QPainter painter(&m_image);
    painter.setPen(QPen(toQColor(colour), 0));
    painter.drawLine(QPointF(std::floor(x1), std::floor(y1)), QPointF(std::floor(x2), std::floor(y2)));
    changed();
}

void QtCanvas::doBox(double x1, double y1, double x2, double y2, Rgb outline)
{
    QPainter painter(&m_image);
    painter.setPen(QPen(toQColor(outline), 0));
    painter.setBrush(fillBrush());
    painter.setBrushOrigin(0, 0);
    const QRectF box = QRectF(QPointF(std::floor(x1), std::floor(y1)), QPointF(std::floor(x2), std::floor(y2)))
                           .normalized();
    painter.drawRect(box);
    changed();
}

void QtCanvas::doCircle(double cx, double cy, double radius, Rgb outline)
{
    QPainter painter(&m_image);
    painter.setPen(QPen(toQColor(outline), 0));
    painter.setBrush(fillBrush());
    painter.setBrushOrigin(0, 0);
    painter.drawEllipse(QPointF(cx, cy), radius, radius);
    changed();
}

void QtCanvas::doFloodFill(int px, int py)
{
    const QRgb border = toQColor(foreColor()).rgb();
    const int width = m_image.width();
    const auto mask = floodRegion(width, m_image.height(), px, py, [this, border](int x, int y) {
        return (m_image.pixel(x, y) & 0xFFFFFF) == (border & 0xFFFFFF);
    });
    if (mask.empty())
        return;
    const QRgb fill = toQColor(fillColor()).rgb();
    for (int y = 0; y < m_image.height(); ++y) {
        for (int x = 0; x < width; ++x) {
            if (mask[static_cast<std::size_t>(y) * width + x] && takesFill(fillStyle(), x, y))
                m_image.setPixel(x, y, fill);
        }
    }
    changed();
}

void QtCanvas::doText(double x, double y, std::string_view text)
{
    QPainter painter(&m_image);
    painter.setFont(m_font);
    painter.setPen(toQColor(foreColor()));
    const QFontMetricsF metrics(m_font, &m_image);
    painter.drawText(QPointF(x, y + metrics.ascent()), toQString(std::string(text)));
    changed();
}

double QtCanvas::textWidthPixels(std::string_view text)
{
    return QFontMetricsF(m_font, &m_image).horizontalAdvance(toQString(std::string(text)));
}

double QtCanvas::textHeightPixels(std::string_view)
{
    return QFontMetricsF(m_font, &m_image).height();
}

void QtCanvas::fontChanged()
{
    m_font = QFont(QStringLiteral("Arial"));
    m_font.setPointSizeF(fontSize());
    m_font.setBold(fontBold());
}

} // namespace quillet
