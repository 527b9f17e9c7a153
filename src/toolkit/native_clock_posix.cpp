#include <langinfo.h>
#include <locale.h>
#include <string_view>
#include <time.h>

#include "toolkit/native_clock.h"

namespace tarvex {

namespace {

std::string MonthDayYear(const tm& day) {
    return std::to_string(day.tm_mon + 1) + "/" + std::to_string(day.tm_mday) + "/" +
           std::to_string(day.tm_year + 1900);
}

class LocaleClock : public Clock {
  public:
    // A locale that is not installed counts as that of the C language.
    LocaleClock() : locale_(newlocale(LC_TIME_MASK, "", nullptr)) {}
    ~LocaleClock() override {
        if (locale_ != nullptr) freelocale(locale_);
    }
    LocaleClock(const LocaleClock&) = delete;
    LocaleClock& operator=(const LocaleClock&) = delete;

    std::string ShortDate() override {
        constexpr std::string_view formOfC = "%m/%d/%y";
        const time_t now = time(nullptr);
        tm day{};
        localtime_r(&now, &day);
        if (locale_ == nullptr || nl_langinfo_l(D_FMT, locale_) == formOfC) return MonthDayYear(day);
        char text[256];
        std::string date(text, strftime_l(text, sizeof text, "%x", &day, locale_));
        std::erase(date, ',');
        return date.empty() ? MonthDayYear(day) : date;
    }

  private:
    locale_t locale_;
};

}  // namespace

std::unique_ptr<Clock> MakeNativeClock() {
    return std::make_unique<LocaleClock>();
}

}  // namespace tarvex
