// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Nearest.h"

#include "Text.h"

#include <QtCore/QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// Longer texts are no slip of a finger, and the comparison costs the product of the lengths.
constexpr qsizetype kLongestWord = 64;
/// What is shorter is the beginning of too much.
constexpr qsizetype kShortestBeginning = 3;

} // namespace

int editDistance(const QString &a, const QString &b)
{
    QList<int> beforeLast(b.size() + 1);
    QList<int> last(b.size() + 1);
    QList<int> current(b.size() + 1);
    for (qsizetype j = 0; j <= b.size(); ++j)
        last[j] = int(j);
    for (qsizetype i = 1; i <= a.size(); ++i) {
        current[0] = int(i);
        for (qsizetype j = 1; j <= b.size(); ++j) {
            const int change = a.at(i - 1) == b.at(j - 1) ? 0 : 1;
            current[j] = std::min({last.at(j) + 1, current.at(j - 1) + 1, last.at(j - 1) + change});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1))
                current[j] = std::min(current.at(j), beforeLast.at(j - 2) + 1);
        }
        beforeLast.swap(last);
        last.swap(current);
    }
    return last.at(b.size());
}

QString nearestName(const QString &text, const QStringList &names)
{
    if (text.isEmpty() || text.size() > kLongestWord)
        return {};
    const QString folded = text.toCaseFolded();
    QString nearest;
    int best = std::max(1, int(text.size()) / 3) + 1;
    for (const QString &name : names) {
        if (name.size() > kLongestWord)
            continue;
        const int distance = editDistance(folded, name.toCaseFolded());
        if (distance < best) {
            best = distance;
            nearest = name;
        }
    }
    if (!nearest.isEmpty() || text.size() < kShortestBeginning)
        return nearest;
    // Or it was not written to its end.
    const auto longer = std::find_if(names.begin(), names.end(), [&text](const QString &name) {
        return name.startsWith(text, Qt::CaseInsensitive);
    });
    return longer == names.end() ? QString() : *longer;
}

QString suggestion(const QString &text, const QStringList &names)
{
    const QString name = nearestName(text, names);
    return name.isEmpty() ? QString() : u"did you mean %1?"_s.arg(quoted(name));
}

} // namespace Norvane::Kilnjet::Tool
