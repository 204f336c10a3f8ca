#include "Date.h"

#include <ctime>

namespace quillet {

std::string formatDate(const Date& date)
{
    static const char* const kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                          "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    const int month = date.month >= 1 && date.month <= 12 ? date.month : 1;
    return std::to_string(date.day) + " " + kMonths[month - 1] + " " + std::to_string(date.year);
}

std::string formatTime(const TimeOfDay& time)
{
    const auto twoDigits = [](int value) { return (value < 10 ? "0" : "") + std::to_string(value); };
    return twoDigits(time.hour) + ":" + twoDigits(time.minute);
}

namespace {

std::tm localNow()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return local;
}

} // namespace

Date SystemClock::today() const
{
    const std::tm local = localNow();
    return Date{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

TimeOfDay SystemClock::now() const
{
    const std::tm local = localNow();
    return TimeOfDay{local.tm_hour, local.tm_min};
}

} // namespace quillet
