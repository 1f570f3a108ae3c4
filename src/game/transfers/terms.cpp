#include "terms.h"

namespace game {

namespace {

// More digits than any sum the game takes (2147483647 has ten).
constexpr int kMostDigits = 10;

} // namespace

QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar c : text) {
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            digits += c;
    }
    return digits;
}

std::optional<qint64> sumOfBox(const QString &box)
{
    const QString digits = digitsOf(box);
    if (digits.isEmpty())
        return 1;
    if (digits.size() > kMostDigits)
        return std::nullopt;
    return digits.toLongLong();
}

std::optional<int> typedYears(const QString &box)
{
    // Blanks around the number do not count against it.
    bool number = false;
    const int years = box.toInt(&number);
    if (!number || years < kFewestContractYears || years > kMostContractYears)
        return std::nullopt;
    return years;
}

int yearsOfBox(const QString &box)
{
    return typedYears(box).value_or(kFewestContractYears);
}

} // namespace game
