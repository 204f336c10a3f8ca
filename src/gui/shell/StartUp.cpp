#include "StartUp.h"

#include "shell/UserFolder.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
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

std::optional<std::filesystem::path> startFolder(const QStringList& arguments,
                                                 const std::function<void(const std::string&)>& tell)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Plans the load of a flight simulator's aircraft. Quillet keeps its settings (quillet.ini), the\n"
        "saved loads and the aircraft pictures in the folder it is started from."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption own(
        QStringLiteral("user-folder"),
        QStringLiteral("Work in your own Quillet folder (%1) instead, made on first start "
                       "with the aircraft pictures.")
            .arg(QString::fromStdU16String(userFolder().u16string())));
    parser.addOption(own);
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
