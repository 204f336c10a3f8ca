#include "platform/PictureBox.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <gtest/gtest.h>

namespace quillet {
namespace {

// A picture of the given size with a red frame four pixels wide, the rest white.
QPixmap framedPicture(int width, int height)
{
    QPixmap picture(width, height);
    picture.fill(Qt::red);
    QPainter(&picture).fillRect(4, 4, width - 8, height - 8, Qt::white);
    return picture;
}

bool redAt(const QImage& shown, int x, int y)
{
    const QColor c = shown.pixelColor(x, y);
    return c.red() > 200 && c.green() < 60 && c.blue() < 60;
}

TEST(PictureBox, APictureLargerThanItsBoxIsScaledToFitAndASmallerOneIsShownAsItIs)
{
    PictureBox box;
    box.setBorder(false);
    box.resize(154, 107); // the jet forms' box for their 164 x 114 pictures
    box.setPicture(framedPicture(164, 114));
    QImage shown = box.grab().toImage();
    // The whole frame is inside the box: right and bottom edges included.
    EXPECT_TRUE(redAt(shown, 1, 50));
    EXPECT_TRUE(redAt(shown, 151, 50));
    EXPECT_TRUE(redAt(shown, 70, 1));
    EXPECT_TRUE(redAt(shown, 70, 104));
    EXPECT_FALSE(redAt(shown, 70, 50));

    box.setPicture(framedPicture(100, 50));
    shown = box.grab().toImage();
    EXPECT_TRUE(redAt(shown, 98, 25));
    EXPECT_TRUE(redAt(shown, 50, 48));
    EXPECT_FALSE(redAt(shown, 102, 25)) << "not stretched to the box";
    EXPECT_FALSE(redAt(shown, 50, 52));
}

} // namespace
} // namespace quillet
