#pragma once

#include "LoadForm.h"

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quillet {

// The load forms by name ("Beech", "Boeing"): each subsystem registers a maker, and a form is made
// on first use and kept for the rest of the run. A form shared by several types ("Boeing") names the
// type strings it can set up so far.
class FormRegistry {
public:
    using Maker = std::function<std::unique_ptr<LoadForm>(Session&)>;

    // `types`: the type strings the form serves; empty for every type that names it.
    void add(std::string name, Maker maker, std::vector<std::string> types = {})
    {
        m_types[name] = std::move(types);
        m_makers[std::move(name)] = std::move(maker);
    }

    // Whether the form of that name can set up the type.
    bool serves(std::string_view name, std::string_view type) const
    {
        auto types = m_types.find(std::string(name));
        if (types == m_types.end())
            return false;
        return types->second.empty() ||
               std::find(types->second.begin(), types->second.end(), type) != types->second.end();
    }

    // The form of that name, made now if need be; nullptr when no subsystem provides it.
    LoadForm* form(std::string_view name, Session& session)
    {
        const std::string key(name);
        if (auto made = m_forms.find(key); made != m_forms.end())
            return made->second.get();
        auto maker = m_makers.find(key);
        if (maker == m_makers.end())
            return nullptr;
        return (m_forms[key] = maker->second(session)).get();
    }

    // The form of that name if it has been made.
    LoadForm* existing(std::string_view name) const
    {
        auto made = m_forms.find(std::string(name));
        return made == m_forms.end() ? nullptr : made->second.get();
    }

    bool provides(std::string_view name) const { return m_makers.count(std::string(name)) != 0; }

private:
    std::map<std::string, Maker> m_makers;
    std::map<std::string, std::vector<std::string>> m_types;
    std::map<std::string, std::unique_ptr<LoadForm>> m_forms;
};

} // namespace quillet
