#pragma once

#include "platform/Canvas.h"
#include "platform/Rgb.h"

#include <QColor>
#include <QRect>
#include <QString>
#include <QWidget>

#include <string>

namespace quillet {

// Window positions are designed in twips; the screen has 15 of them to a pixel.
inline int twipsToPixels(double twips)
{
    return static_cast<int>(twips / kTwipsPerPixel + 0.5);
}

inline QRect twipsRect(double left, double top, double width, double height)
{
    return QRect(twipsToPixels(left), twipsToPixels(top), twipsToPixels(width), twipsToPixels(height));
}

inline void place(QWidget* widget, double left, double top, double width, double height)
{
    widget->setGeometry(twipsRect(left, top, width, height));
}

inline QColor toQColor(Rgb colour)
{
    return QColor(colour.r, colour.g, colour.b);
}

// The program's texts are bytes; show them as Latin-1 when they are not valid UTF-8, the way a user's
// hand-edited files are usually written.
inline QString toQString(const std::string& text)
{
    const QString utf8 = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    if (!utf8.contains(QChar::ReplacementCharacter))
        return utf8;
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string fromQString(const QString& text)
{
    return text.toStdString();
}

} // namespace quillet
