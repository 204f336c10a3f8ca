#include "Session.h"

#include "platform/Paths.h"

namespace quillet {

std::filesystem::path Session::picture(std::string_view name)
{
    if (auto found = findPath(name, programFolder, files.system()))
        return *found;
    messages.reportOnce("The picture \"" + std::string(name) + "\" was not found in " +
                        quotedPath(programFolder) + "; its picture box stays blank.");
    return {};
}

} // namespace quillet
