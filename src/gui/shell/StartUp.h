#pragma once

#include <QStringList>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace quillet {

// Answers --help and --version on the terminal and ends the program, before any window system is
// touched, so that they work without a display. Returns when the program is to start.
void answerOnTerminal(int& argc, char** argv);

// The layouts are measured in Arial and Times New Roman. For each that the system draws with a font
// of other metrics (captions may then be cut), a line saying so and naming the package that brings
// fonts of the same metrics.
QStringList fontsThatDiffer();

// The folder the program works in, from its command line. By default the folder it is started from.
// With --user-folder, as the desktop entry starts an installed copy: the user's own folder, made on
// first start and given the installed pictures and starter settings. Nothing when the program
// cannot start there; `tell` has then been given the reason (it also hears of pictures that could
// not be copied, after which the program starts all the same).
std::optional<std::filesystem::path> startFolder(const QStringList& arguments,
                                                 const std::function<void(const std::string&)>& tell);

// "quillet" under the XDG data home: ~/.local/share/quillet unless XDG_DATA_HOME says otherwise.
std::filesystem::path userFolder();

// The aircraft pictures an installed copy brought with it, found from the executable's folder.
std::filesystem::path installedPictures();

} // namespace quillet
