#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

namespace {

QtMessageHandler standardHandler = nullptr;

// The offscreen platform warns about every window feature it lacks; that says nothing about us.
void quietOffscreen(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.startsWith(QStringLiteral("This plugin does not support")))
        return;
    standardHandler(type, context, message);
}

} // namespace

int main(int argc, char* argv[])
{
    // The GUI tests never need a screen; test discovery at build time runs them without CTest's
    // environment too.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    standardHandler = qInstallMessageHandler(quietOffscreen);
    QApplication app(argc, argv);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8.25);
    QApplication::setFont(font);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
