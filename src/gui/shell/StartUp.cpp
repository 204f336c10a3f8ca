#include "StartUp.h"

#include "shell/UserFolder.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFont>
#include <QFontInfo>
#include <QStandardPaths>

namespace fs = std::filesystem;

namespace quillet {

std::filesystem::path userFolder()
{
    const QString dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return fs::path(dataHome.toStdU16String()) / "quillet";
}

std::filesystem::path installedPictures()
{
    // Where the install puts the data, relative to the executable's folder, so that an installed
    // tree can be moved as a whole.
    const QString data =
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral(QUILLET_DATA_FROM_BINDIR));
    return fs::path(QDir::cleanPath(data).toStdU16String()) / "pictures";
}

namespace {

// The program's options, for both the terminal answers and the start.
struct Options {
    Options()
        : own(QStringLiteral("user-folder"),
              QStringLiteral("Work in your own Quillet folder (%1) instead, made on first start "
                             "with the aircraft pictures.")
                  .arg(QString::fromStdU16String(userFolder().u16string())))
    {
        parser.setApplicationDescription(QStringLiteral(
            "Plans the load of a flight simulator's aircraft. Quillet keeps its settings (quillet.ini), "
            "the\nsaved loads and the aircraft pictures in the folder it is started from."));
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOption(own);
    }

    QCommandLineParser parser;
    QCommandLineOption own;
};

} // namespace

void answerOnTerminal(int& argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    Options options;
    QCommandLineParser& parser = options.parser;
    // Anything the parser does not know (a Qt option such as -platform) is left to the full start.
    if (!parser.parse(arguments))
        return;
    if (!parser.isSet(QStringLiteral("help")) && !parser.isSet(QStringLiteral("help-all")) &&
        !parser.isSet(QStringLiteral("version")))
        return;
    QCoreApplication terminal(argc, argv);
    parser.process(terminal); // prints and exits
}

QStringList fontsThatDiffer()
{
    struct Needed {
        QString family;
        QStringList sameMetrics;
    };
    const Needed needed[] = {
        {QStringLiteral("Arial"),
         {QStringLiteral("Arial"), QStringLiteral("Liberation Sans"), QStringLiteral("Arimo")}},
        {QStringLiteral("Times New Roman"),
         {QStringLiteral("Times New Roman"), QStringLiteral("Liberation Serif"), QStringLiteral("Tinos")}},
    };
    QStringList lines;
    for (const Needed& font : needed) {
        const QString drawnWith = QFontInfo(QFont(font.family)).family();
        if (font.sameMetrics.contains(drawnWith, Qt::CaseInsensitive))
            continue;
        lines << QStringLiteral(
                     "\"%1\" is drawn with \"%2\", whose letters are of other widths, so some "
                     "captions may be cut; install a font of the same metrics (on Debian and Ubuntu: "
                     "fonts-liberation).")
                     .arg(font.family, drawnWith);
    }
    return lines;
}

std::optional<std::filesystem::path> startFolder(const QStringList& arguments,
                                                 const std::function<void(const std::string&)>& tell)
{
    Options options;
    QCommandLineParser& parser = options.parser;
    const QCommandLineOption& own = options.own;
    parser.process(arguments);

    if (!parser.isSet(own))
        return fs::current_path();

    const fs::path folder = userFolder();
    const Status prepared = prepareUserFolder(folder, installedPictures(), Files{});
    if (!prepared)
        tell(prepared.error().message);
    std::error_code ec;
    if (!fs::is_directory(folder, ec))
        return std::nullopt;
    return folder;
}

} // namespace quillet
