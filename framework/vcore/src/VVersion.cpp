// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VVersion.h>

#include <array>
#include <charconv>

namespace Norvane {

namespace {

/// A version number of plain ASCII digits from 0 to 255, without leading zeros, else -1.
int numberFromText(QStringView text)
{
    if (text.isEmpty() || text.size() > 3 || (text.size() > 1 && text.front() == u'0'))
        return -1;
    int number = 0;
    for (const QChar digit : text) {
        if (digit < u'0' || digit > u'9')
            return -1;
        number = number * 10 + (digit.unicode() - u'0');
    }
    return number <= 0xFF ? number : -1;
}

} // namespace

QString VVersion::toString() const
{
    std::array<char, 12> text{}; // Three numbers of three digits at most.
    char *end = text.data();
    for (const int number : {majorNumber(), minorNumber(), patchNumber()}) {
        if (end != text.data())
            *end++ = '.';
        end = std::to_chars(end, text.data() + text.size(), number).ptr;
    }
    return QString::fromLatin1(text.data(), end - text.data());
}

VVersion VVersion::fromString(const QString &text, bool *ok)
{
    const qsizetype first = text.indexOf(u'.');
    const qsizetype second = text.indexOf(u'.', first + 1);
    const QStringView view(text);
    int numbers[3] = {-1, -1, -1};
    if (first >= 0 && second >= 0) {
        numbers[0] = numberFromText(view.first(first));
        numbers[1] = numberFromText(view.sliced(first + 1, second - first - 1));
        numbers[2] = numberFromText(view.sliced(second + 1));
    }
    const bool good = numbers[0] >= 0 && numbers[1] >= 0 && numbers[2] >= 0;
    if (ok != nullptr)
        *ok = good;
    return good ? VVersion(numbers[0], numbers[1], numbers[2]) : VVersion();
}

} // namespace Norvane
