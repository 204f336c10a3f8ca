#include "shell/Application.h"

#include <QApplication>
#include <QFont>

#include <filesystem>

int main(int argc, char* argv[])
{
    QApplication qt(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quillet"));
    QFont font(QStringLiteral("Arial"));
    font.setPointSizeF(8.25);
    QApplication::setFont(font);

    // The program's files (quillet.ini, the station files, the pictures) lie in the current folder.
    quillet::Application app(std::filesystem::current_path());
    app.start();
    return QApplication::exec();
}
