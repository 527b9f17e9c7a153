#include <windows.h>

#include "toolkit/native_clock.h"

namespace tarvex {

namespace {

class SettingsClock : public Clock {
  public:
    std::string ShortDate() override {
        SYSTEMTIME now{};
        GetLocalTime(&now);
        char text[256];
        const int size =
            GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, text, sizeof text);
        if (size <= 1) {
            return std::to_string(now.wMonth) + "/" + std::to_string(now.wDay) + "/" +
                   std::to_string(now.wYear);
        }
        std::string date(text, static_cast<std::size_t>(size - 1));
        std::erase(date, ',');
        return date;
    }
};

}  // namespace

std::unique_ptr<Clock> MakeNativeClock() {
    return std::make_unique<SettingsClock>();
}

}  // namespace tarvex
