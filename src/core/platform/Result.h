#pragma once

#include <optional>
#include <string>
#include <utility>

namespace quillet {

// What went wrong, worded for the user: it names the file and the problem.
struct Error {
    std::string message;
};

// A value or the error that prevented it.
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value) : m_value(std::move(value)) {}
    Result(Error error) : m_error(std::move(error)) {}

    explicit operator bool() const { return m_value.has_value(); }
    bool ok() const { return m_value.has_value(); }

    T& value() & { return *m_value; }
    const T& value() const& { return *m_value; }
    T&& value() && { return std::move(*m_value); }
    T& operator*() & { return *m_value; }
    const T& operator*() const& { return *m_value; }
    T* operator->() { return &*m_value; }
    const T* operator->() const { return &*m_value; }

    const Error& error() const { return m_error; }

private:
    std::optional<T> m_value;
    Error m_error;
};

struct Done {};

// Success or the error that prevented it.
using Status = Result<Done>;

inline Status success() { return Done{}; }

} // namespace quillet
