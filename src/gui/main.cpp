#include "shell/Application.h"
#include "shell/StartUp.h"

#include <QApplication>
#include <QDebug>
#include <QDir>
#include <QFont>
#include <QIcon>
#include <QMessageBox>
#include <filesystem>

int main(int argc, char* argv[])
{
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QApplication::setApplicationVersion(QStringLiteral(QUILLET_VERSION));
    quillet::answerOnTerminal(argc, argv);

    QApplication qt(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("quillet"));
    QIcon icon;
    for (const QString& size : QDir(QStringLiteral(":/icons")).entryList())
        icon.addFile(QStringLiteral(":/icons/%1/quillet.png").arg(size));
    QApplication::setWindowIcon(icon);
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8.25);
    QApplication::setFont(font);
    for (const QString& line : quillet::fontsThatDiffer())
        qWarning().noquote() << line;

    // The program's files (quillet.ini, the station files, the pictures) lie in the folder it works in,
    // which is also its current folder.
    const auto folder = quillet::startFolder(QApplication::arguments(), [](const std::string& message) {
        QMessageBox::warning(nullptr, QStringLiteral("Quillet"), QString::fromStdString(message));
    });
    if (!folder)
        return 1;
    // Files are found through `folder`; the current folder only follows it, so a failure is harmless.
    std::error_code ec;
    std::filesystem::current_path(*folder, ec);

    quillet::Application app(*folder);
    app.start();
    return QApplication::exec();
}
