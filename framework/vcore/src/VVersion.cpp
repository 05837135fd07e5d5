// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VVersion.h>

#include <QtCore/QStringList>

using namespace Qt::StringLiterals;

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
    return u"%1.%2.%3"_s.arg(majorNumber()).arg(minorNumber()).arg(patchNumber());
}

VVersion VVersion::fromString(const QString &text, bool *ok)
{
    int numbers[3] = {-1, -1, -1};
    const QList<QStringView> parts = QStringView(text).split(u'.');
    bool good = parts.size() == 3;
    for (int i = 0; good && i < 3; ++i) {
        numbers[i] = numberFromText(parts.at(i));
        good = numbers[i] >= 0;
    }
    if (ok != nullptr)
        *ok = good;
    return good ? VVersion(numbers[0], numbers[1], numbers[2]) : VVersion();
}

} // namespace Norvane
