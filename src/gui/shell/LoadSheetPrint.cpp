#include "LoadSheetPrint.h"

#include "load/LoadSheet.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "shell/FormLayout.h"
#include "shell/LoadForm.h"

#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <vector>

namespace quillet {

namespace {

// Page positions are in points (1/72 inch).
constexpr double kPointsPerInch = 72.0;
constexpr double kTwipsPerPoint = 20.0;
// Drawings are rendered no finer than this: a deck at 1200 dpi would take a quarter gigabyte.
constexpr double kMaxDrawingDpi = 600.0;
constexpr double kScreenDpi = 96.0;
constexpr double kBodyPoints = 9.0;
constexpr double kGap = 6.0;

const QColor kExceededColour(255, 0, 0);

QFont sheetFont(double points, bool bold = false)
{
    QFont font(QStringLiteral("Liberation Sans"));
    font.setStyleHint(QFont::SansSerif);
    // The painter works in points, so a pixel of the font is a point on paper.
    font.setPixelSize(std::max(1, qRound(points)));
    font.setBold(bold);
    return font;
}

// A table of texts in columns, each row one line; returns the height it took.
class Table {
public:
    Table(QPainter& painter, double left, double width, std::vector<double> columnShares)
        : m_painter(painter), m_left(left), m_width(width), m_shares(std::move(columnShares))
    {
    }

    double row(double top, const std::vector<QString>& cells, bool bold, const QColor& colour)
    {
        m_painter.setFont(sheetFont(kBodyPoints, bold));
        m_painter.setPen(colour);
        const double height = QFontMetricsF(m_painter.font()).height() + 2;
        double x = m_left;
        for (std::size_t i = 0; i < cells.size() && i < m_shares.size(); ++i) {
            const double w = m_shares[i] * m_width;
            // The first column reads left to right; figures line up on the right.
            const Qt::Alignment align = (i == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
            m_painter.drawText(QRectF(x, top, w - 4, height), align, cells[i]);
            x += w;
        }
        return height;
    }

private:
    QPainter& m_painter;
    double m_left;
    double m_width;
    std::vector<double> m_shares;
};

QString text(const std::string& s)
{
    return toQString(s);
}

// Draws a canvas made at the device's resolution into a rectangle of the page (in points).
void drawCanvas(QPainter& painter, QtCanvas& canvas, const QRectF& target)
{
    painter.drawImage(target, canvas.image());
}

// The pixel ratio at which a picture of `widthTwips` drawn `widthPoints` wide on the page has one
// image pixel to each device dot.
double ratioFor(double widthTwips, double widthPoints, double dpi)
{
    const double dots = widthPoints / kPointsPerInch * std::min(dpi, kMaxDrawingDpi);
    const double pixels = widthTwips / kTwipsPerPixel;
    return std::max(1.0, dots / std::max(1.0, pixels));
}

} // namespace

void paintLoadSheet(QPagedPaintDevice& device, const LoadSheet& sheet, LoadForm& form)
{
    QPainter painter(&device);
    const double dpi = device.logicalDpiX();
    painter.scale(dpi / kPointsPerInch, dpi / kPointsPerInch);
    painter.setRenderHint(QPainter::TextAntialiasing);
    // A preview shows the drawings scaled down: smoothing keeps their one-dot lines visible there.
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRectF page = device.pageLayout()
                            .paintRect(QPageLayout::Point)
                            .translated(-device.pageLayout().paintRect(QPageLayout::Point).topLeft());
    const double left = page.left();
    const double width = page.width();
    double y = page.top();

    painter.setFont(sheetFont(16, true));
    painter.setPen(Qt::black);
    const double titleHeight = QFontMetricsF(painter.font()).height();
    painter.drawText(QRectF(left, y, width, titleHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Load sheet ") + text(sheet.type));
    painter.setFont(sheetFont(kBodyPoints));
    painter.drawText(QRectF(left, y, width, titleHeight), Qt::AlignRight | Qt::AlignVCenter,
                     text(sheet.program));
    y += titleHeight + 2;
    const double lineHeight = QFontMetricsF(painter.font()).height() + 2;
    painter.drawText(QRectF(left, y, width, lineHeight), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Aircraft folder: ") + text(sheet.folder));
    painter.drawText(QRectF(left, y, width, lineHeight), Qt::AlignRight | Qt::AlignVCenter,
                     QStringLiteral("Date: ") + text(sheet.date));
    y += lineHeight + kGap;

    const auto rule = [&] {
        painter.setPen(Qt::black);
        painter.drawLine(QPointF(left, y), QPointF(left + width, y));
    };
    const auto cells = [](const LoadSheetRow& row, bool withCount) {
        std::vector<QString> result{text(row.label)};
        if (withCount)
            result.push_back(text(row.count));
        result.insert(result.end(), {text(row.weight), text(row.limit), text(row.margin)});
        return result;
    };

    Table groups(painter, left, width, {0.23, 0.07, 0.19, 0.19, 0.32});
    y += groups.row(y,
                    {QStringLiteral("Group"), QStringLiteral("Loaded"), QStringLiteral("Weight"),
                     QStringLiteral("Limit"), QStringLiteral("Margin")},
                    true, Qt::black);
    rule();
    for (const LoadSheetRow& row : sheet.groups)
        y += groups.row(y, cells(row, true), false, row.exceeded ? kExceededColour : Qt::black);
    y += kGap;

    Table totals(painter, left, width, {0.23, 0.26, 0.19, 0.32});
    y += totals.row(y,
                    {QStringLiteral("Totals"), QStringLiteral("Weight"), QStringLiteral("Limit"),
                     QStringLiteral("Margin")},
                    true, Qt::black);
    rule();
    for (const LoadSheetRow& row : sheet.totals)
        y += totals.row(y, cells(row, false), false, row.exceeded ? kExceededColour : Qt::black);
    y += kGap;

    Table balanceTable(painter, left, width, {1.0});
    y += balanceTable.row(y, {QStringLiteral("Balance")}, true, Qt::black);
    rule();
    for (std::size_t i = 0; i < sheet.balanceLines.size(); ++i) {
        const bool verdict = i + 1 == sheet.balanceLines.size();
        const QColor colour = verdict && !sheet.inBalance ? kExceededColour : Qt::black;
        y += balanceTable.row(y, {text(sheet.balanceLines[i])}, verdict, colour);
    }
    y += kGap;

    // The deck or cabin as the form shows it, drawn afresh at the device's resolution.
    if (Canvas* shown = form.deckPicture()) {
        const double twipsWide = shown->widthPixels() * kTwipsPerPixel;
        const double twipsHigh = shown->heightPixels() * kTwipsPerPixel;
        const double balanceRoom = 80;
        double drawWidth = width;
        double drawHeight = drawWidth * twipsHigh / twipsWide;
        const double room = page.bottom() - y - balanceRoom;
        if (drawHeight > room && room > 0) {
            drawHeight = room;
            drawWidth = drawHeight * twipsWide / twipsHigh;
        }
        QtCanvas deck(twipsWide, twipsHigh, kWhite, ratioFor(twipsWide, drawWidth, dpi));
        form.drawDeck(deck);
        drawCanvas(painter, deck, QRectF(left, y, drawWidth, drawHeight));
        painter.setPen(Qt::black);
        painter.drawRect(QRectF(left, y, drawWidth, drawHeight));
        y += drawHeight + kGap;
    }

    // The two balance pictures side by side, twice their size on the screen, with their captions.
    Canvas& along = form.Picture4();
    Canvas& across = form.Picture3();
    const double scale = 2.0;
    const QSizeF alongSize(along.widthPixels() * kTwipsPerPixel / kTwipsPerPoint * scale,
                           along.heightPixels() * kTwipsPerPixel / kTwipsPerPoint * scale);
    const QSizeF acrossSize(across.widthPixels() * kTwipsPerPixel / kTwipsPerPoint * scale,
                            across.heightPixels() * kTwipsPerPixel / kTwipsPerPoint * scale);
    QtCanvas picture4(along.widthPixels() * kTwipsPerPixel, along.heightPixels() * kTwipsPerPixel, kWhite,
                      ratioFor(along.widthPixels() * kTwipsPerPixel, alongSize.width(), dpi));
    QtCanvas picture3(across.widthPixels() * kTwipsPerPixel, across.heightPixels() * kTwipsPerPixel, kWhite,
                      ratioFor(across.widthPixels() * kTwipsPerPixel, acrossSize.width(), dpi));
    const CentreOfGravity& cg = sheet.cg;
    balance(cg.maxX, cg.minX, cg.maxY, cg.minY, cg.x, cg.y, kBalanceTolerance, picture4, picture3);
    painter.setFont(sheetFont(kBodyPoints));
    const double captionHeight = QFontMetricsF(painter.font()).height() + 2;
    const double acrossLeft = left + width - acrossSize.width();
    painter.drawText(QRectF(left, y, alongSize.width(), captionHeight), Qt::AlignLeft,
                     toQString(std::string(kLabel2Text)));
    painter.drawText(QRectF(acrossLeft, y, acrossSize.width(), captionHeight), Qt::AlignLeft,
                     toQString(std::string(kLabel3Text)));
    y += captionHeight;
    drawCanvas(painter, picture4, QRectF(QPointF(left, y), alongSize));
    drawCanvas(painter, picture3, QRectF(QPointF(acrossLeft, y), acrossSize));
}

bool saveLoadSheetPdf(const QString& file, const LoadSheet& sheet, LoadForm& form)
{
    QPdfWriter writer(file);
    if (!writer.setPageSize(QPageSize(QPageSize::A4)))
        return false;
    writer.setPageMargins(QMarginsF(15, 15, 15, 15), QPageLayout::Millimeter);
    writer.setResolution(static_cast<int>(kMaxDrawingDpi));
    writer.setTitle(QStringLiteral("Load sheet ") + text(sheet.type));
    writer.setCreator(text(sheet.program));
    paintLoadSheet(writer, sheet, form);
    // QPdfWriter reports no write failure; an empty or missing file is one.
    QFileInfo written(file);
    return written.exists() && written.size() > 0;
}

} // namespace quillet
