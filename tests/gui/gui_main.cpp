#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    // The GUI tests never need a screen; test discovery at build time runs them without CTest's
    // environment too.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8.25);
    QApplication::setFont(font);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
