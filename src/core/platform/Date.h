#pragma once

#include <string>

namespace quillet {

struct Date {
    int year = 2000;
    int month = 1; // 1..12
    int day = 1;
};

struct TimeOfDay {
    int hour = 0; // 0..23
    int minute = 0;
};

// "D mmm yyyy" in English whatever the locale: "7 Mar 2001".
std::string formatDate(const Date& date);
// "hh:mm" on the 24-hour clock: "09:05".
std::string formatTime(const TimeOfDay& time);

class Clock {
public:
    virtual ~Clock() = default;
    virtual Date today() const = 0;
    virtual TimeOfDay now() const = 0;
};

// The computer's local date and time.
class SystemClock final : public Clock {
public:
    Date today() const override;
    TimeOfDay now() const override;
};

class FixedClock final : public Clock {
public:
    explicit FixedClock(Date date, TimeOfDay time = {}) : m_date(date), m_time(time) {}
    void set(Date date) { m_date = date; }
    void set(TimeOfDay time) { m_time = time; }
    Date today() const override { return m_date; }
    TimeOfDay now() const override { return m_time; }

private:
    Date m_date;
    TimeOfDay m_time;
};

} // namespace quillet
