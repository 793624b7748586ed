// Reading a number that a user typed.
#include "Gradient/model/DecimalNumber.h"

#include <locale.h>
#include <stdlib.h>

#include <cstring>

namespace {

/// The C library's own locale, for a scope.
class PlainLocale {
  public:
    PlainLocale() : locale_(newlocale(LC_ALL_MASK, "C", nullptr)) {}
    PlainLocale(PlainLocale const&) = delete;
    PlainLocale& operator=(PlainLocale const&) = delete;
    ~PlainLocale() { freelocale(locale_); }

    [[nodiscard]] locale_t Get() const { return locale_; }

  private:
    locale_t locale_;
};

bool BeginsWithDigits(char const* text) {
    text += std::strspn(text, " \t\n\v\f\r");
    text += *text == '+' || *text == '-' ? 1 : 0;
    return *text == '.' || (*text >= '0' && *text <= '9');
}

} // namespace

double ReadDecimal(char const* text) {
    // atof would follow the desktop's language.
    return BeginsWithDigits(text) ? strtod_l(text, nullptr, PlainLocale().Get()) : 0.0;
}
