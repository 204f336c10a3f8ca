#pragma once

#include <cctype>
#include <string>
#include <string_view>

namespace quillet {

// A type string as a test name: GoogleTest takes letters, digits and underscores only.
inline std::string testNameOf(std::string_view type)
{
    std::string name(type);
    for (char& c : name) {
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    }
    return name;
}

} // namespace quillet
