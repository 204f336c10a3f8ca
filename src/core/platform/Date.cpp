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

Date SystemClock::today() const
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    return Date{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

} // namespace quillet
