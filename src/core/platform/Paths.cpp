#include "Paths.h"

#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace quillet {

std::string lowerAscii(std::string_view text)
{
    std::string out(text);
    for (char& c : out) {
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    }
    return out;
}

namespace {

struct SplitPath {
    fs::path root; // empty for a relative path
    std::vector<std::string> parts;
};

SplitPath split(std::string_view path)
{
    SplitPath out;
    std::size_t i = 0;
#ifdef _WIN32
    if (path.size() >= 2 && path[1] == ':') {
        out.root = pathFromUtf8(std::string(path.substr(0, 2)) + "\\");
        i = 2;
    }
#endif
    if (i < path.size() && (path[i] == '\\' || path[i] == '/')) {
        if (out.root.empty())
            out.root = fs::path("/").root_directory();
        ++i;
    }
    std::string part;
    for (; i <= path.size(); ++i) {
        if (i == path.size() || path[i] == '\\' || path[i] == '/') {
            if (!part.empty() && part != ".")
                out.parts.push_back(part);
            part.clear();
        } else {
            part += path[i];
        }
    }
    return out;
}

fs::path startOf(const SplitPath& split, const fs::path& base)
{
    if (!split.root.empty())
        return split.root;
    return base.empty() ? fs::path(".") : base;
}

// The path with every part as written. Letter case is usually right, so one look at this path mostly
// spares looking at each part. The parts are joined first, as each join of a path makes it anew.
fs::path asWritten(const SplitPath& split, const fs::path& base)
{
    std::string parts;
    for (const std::string& part : split.parts) {
        if (!parts.empty())
            parts += static_cast<char>(fs::path::preferred_separator);
        parts += part;
    }
    return parts.empty() ? startOf(split, base) : startOf(split, base) / pathFromUtf8(parts);
}

// The entry of `dir` named `name`, exact match first, then without regard to letter case.
std::optional<fs::path> findEntry(const FileSystem& system, const fs::path& dir, const std::string& name)
{
    std::error_code ec;
    const fs::path exact = dir / pathFromUtf8(name);
    if (name == ".." || system.status(exact, ec).exists())
        return exact;
    const std::string wanted = lowerAscii(name);
    for (const std::string& entry : system.list(dir)) {
        if (lowerAscii(entry) == wanted)
            return dir / pathFromUtf8(entry);
    }
    return std::nullopt;
}

} // namespace

std::optional<fs::path> findPath(std::string_view path, const fs::path& base, const FileSystem& system)
{
    const SplitPath parts = split(path);
    if (parts.parts.empty() && parts.root.empty())
        return std::nullopt;
    std::error_code ec;
    if (fs::path exact = asWritten(parts, base); system.status(exact, ec).exists())
        return exact;
    fs::path current = startOf(parts, base);
    for (const std::string& part : parts.parts) {
        auto next = findEntry(system, current, part);
        if (!next)
            return std::nullopt;
        current = *next;
    }
    if (!system.status(current, ec).exists())
        return std::nullopt;
    return current;
}

fs::path resolvePath(std::string_view path, const fs::path& base, const FileSystem& system)
{
    const SplitPath parts = split(path);
    std::error_code ec;
    if (fs::path exact = asWritten(parts, base); system.status(exact, ec).exists())
        return exact;
    fs::path current = startOf(parts, base);
    bool found = true;
    for (const std::string& part : parts.parts) {
        std::optional<fs::path> next = found ? findEntry(system, current, part) : std::nullopt;
        found = next.has_value();
        current = found ? *next : current / pathFromUtf8(part);
    }
    return current;
}

bool fileExists(std::string_view path, const fs::path& base, const FileSystem& system)
{
    const auto found = findPath(path, base, system);
    std::error_code ec;
    return found && system.status(*found, ec).isFile();
}

bool isSingleName(std::string_view name)
{
    return name.find_first_of("/\\:") == std::string_view::npos &&
           name.find_first_not_of(". \t") != std::string_view::npos;
}

std::string displayPath(const fs::path& path)
{
    return utf8Of(path.lexically_normal());
}

std::string quotedPath(const fs::path& path)
{
    return '"' + displayPath(path) + '"';
}

fs::path pathFromUtf8(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

std::string utf8Of(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
}

} // namespace quillet
