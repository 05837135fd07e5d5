// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Tables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

/// What a table shows of a job.
struct Column
{
    const char16_t *title;
    const char16_t *job;
    double Sample::*figure = &Sample::wall;
    double factor = 1;
};

constexpr Column kColumns[] = {
    {u"load, ms", u"load"},
    {u"its CPU, ms", u"load", &Sample::cpu},
    {u"load + read, ms", u"load and read"},
    {u"value(id), µs", u"value", &Sample::wall, 1'000},
    {u"commit 1, ms", u"commit 1"},
    {u"open, commit 1, close, ms", u"open, commit 1, close"},
    {u"commit 100, ms", u"commit 100"},
    {u"commit all, ms", u"commit all"},
    {u"delete 10 % + compact, ms", u"delete 10 %, compact"},
    {u"file, MB", u"file"},
    {u"peak memory, MB", u"memory"},
};

/// What the growth of our own is shown in.
constexpr Column kGrowth[] = {
    {u"load, ms", u"load"},
    {u"load + read, ms", u"load and read"},
    {u"commit all, ms", u"commit all"},
    {u"purge, ms", u"compact"},
    {u"commit 1, ms", u"commit 1"},
    {u"value(id), µs", u"value", &Sample::wall, 1'000},
    {u"file, MB", u"file"},
    {u"peak memory, MB", u"memory"},
};

/// As a person would round.
QString rounded(double value, int figures = 3)
{
    if (value == 0)
        return u"0"_s;
    const int digits = std::max(0, figures - 1 - int(std::floor(std::log10(std::abs(value)))));
    return QString::number(value, 'f', digits);
}

QString row(const QStringList &cells)
{
    return u"| "_s + cells.join(u" | "_s) + u" |\n"_s;
}

template<std::size_t N>
QString head(const QString &first, const Column (&columns)[N])
{
    QStringList titles{first};
    QStringList lines{u"---"_s};
    for (const Column &column : columns) {
        titles.append(QString::fromUtf16(column.title));
        lines.append(u"---:"_s);
    }
    return row(titles) + row(lines);
}

/// Makes a table of the results of one catalogue.
class CaseTables
{
public:
    CaseTables(const Results &results, const Case &where)
        : m_results(results)
        , m_where(where)
        , m_contenders(results.contenders())
    { }

    QString medians() const
    {
        QString text = head(u"store"_s, kColumns);
        for (const QString &contender : m_contenders) {
            QStringList cells{contender};
            for (const Column &column : kColumns) {
                const auto figure = figureOf(contender, column);
                cells.append(figure ? rounded(*figure) : u"-"_s);
            }
            text += row(cells);
        }
        return text;
    }

    /// How much of a peer's figure ours is.
    QString ratios() const
    {
        QString text = head(u"vkilnjet / peer"_s, kColumns);
        for (const QString &contender : m_contenders.mid(1)) {
            QStringList cells{contender};
            for (const Column &column : kColumns)
                cells.append(
                    ratio(figureOf(m_contenders.first(), column), figureOf(contender, column)));
            text += row(cells);
        }
        return text;
    }

    /// The peers without the work on JSON, and how much of that our whole is.
    QString storesAlone() const
    {
        constexpr Column kStore[] = {kColumns[0], kColumns[3], kColumns[4], kColumns[5],
                                     kColumns[6], kColumns[7], kColumns[8]};
        QString text = head(u"store alone"_s, kStore);
        for (const QString &contender : m_contenders.mid(1)) {
            QStringList cells{contender};
            for (const Column &column : kStore) {
                const auto sample = m_results.median(m_where, contender, job(column));
                if (!sample || !sample->store) {
                    cells.append(u"-"_s);
                    continue;
                }
                const double alone = *sample->store * column.factor;
                cells.append(rounded(alone) + u" ("_s
                             + ratio(figureOf(m_contenders.first(), column), alone) + u')');
            }
            text += row(cells);
        }
        return text;
    }

    QStringList growth() const
    {
        QStringList cells{QString::number(m_where.size)};
        for (const Column &column : kGrowth) {
            const auto figure = figureOf(m_contenders.first(), column);
            cells.append(figure ? rounded(*figure) : u"-"_s);
        }
        return cells;
    }

private:
    static QString job(const Column &column) { return QString::fromUtf16(column.job); }

    static QString ratio(std::optional<double> ours, std::optional<double> theirs)
    {
        return ours && theirs && *theirs > 0 ? rounded(*ours / *theirs, 2) : u"-"_s;
    }

    std::optional<double> figureOf(const QString &contender, const Column &column) const
    {
        const auto sample = m_results.median(m_where, contender, job(column));
        return sample ? std::optional((*sample).*column.figure * column.factor) : std::nullopt;
    }

    const Results &m_results;
    Case m_where;
    QStringList m_contenders;
};

QString growthTable(const Results &results, Variant variant)
{
    QString text = head(u"drivers"_s, kGrowth);
    for (const Case &where : results.cases()) {
        if (where.variant == variant)
            text += row(CaseTables(results, where).growth());
    }
    return text;
}

QString startupText(const QJsonObject &startup)
{
    const auto number = [&](const char *key) {
        return rounded(startup.value(QLatin1StringView(key)).toDouble());
    };
    QString text = u"A process with Qt Core alone takes %1 ms, with Qt Gui and Svg %2 ms, with our "
                   "library %3 ms"_s.arg(number("coreMs"), number("guiMs"), number("libraryMs"));
    if (startup.contains("coreMillionInstructions"_L1)) {
        text += u"; %1, %2 and %3 million instructions"_s.arg(number("coreMillionInstructions"),
                                                              number("guiMillionInstructions"),
                                                              number("libraryMillionInstructions"));
    }
    return text + u".\n"_s;
}

QString machineText(const QJsonObject &machine)
{
    const auto text = [&](QLatin1StringView key) { return machine.value(key).toString(); };
    return u"%1, %2 cores, %3, Linux %4, %5, Qt %6, %7, %8.\n"_s.arg(
        text("processor"_L1), QString::number(machine.value("cores"_L1).toInt()), text("system"_L1),
        text("kernel"_L1), text("fileSystem"_L1), text("qt"_L1), text("compiler"_L1),
        text("time"_L1));
}

} // namespace

QString tables(const Results &results)
{
    QString text = machineText(results.machine);
    for (const Case &where : results.cases()) {
        const CaseTables made(results, where);
        text += u"\n### %1 drivers, %2: %3 MB of JSON\n\n"_s.arg(
            QString::number(where.size), nameOf(where.variant),
            rounded(double(where.jsonBytes) / 1e6));
        text += made.medians() + u'\n';
        if (results.contenders().size() > 1)
            text += made.ratios() + u'\n' + made.storesAlone();
    }
    if (!results.cases().isEmpty())
        text += u"\n### Growth of vkilnjet\n\n"_s
            + growthTable(results, results.cases().first().variant);
    return text + u"\n### Start of a process\n\n"_s + startupText(results.startup);
}

} // namespace Bench
