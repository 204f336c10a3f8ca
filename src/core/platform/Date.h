#pragma once

#include <string>

namespace quillet {

struct Date {
    int year = 2000;
    int month = 1; // 1..12
    int day = 1;
};

// "D mmm yyyy" in English whatever the locale: "7 Mar 2001".
std::string formatDate(const Date& date);

class Clock {
public:
    virtual ~Clock() = default;
    virtual Date today() const = 0;
};

// The computer's local date.
class SystemClock final : public Clock {
public:
    Date today() const override;
};

class FixedClock final : public Clock {
public:
    explicit FixedClock(Date date) : m_date(date) {}
    void set(Date date) { m_date = date; }
    Date today() const override { return m_date; }

private:
    Date m_date;
};

} // namespace quillet
