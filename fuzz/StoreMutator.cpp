// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Bytes changed at random would hardly ever pass a checksum, so that nothing behind one would be
// tried. This mutator changes whole lines as well as bytes, and often signs the result.

#include "Fuzz.h"
#include "StoreText.h"

#include <QtCore/QList>

#include <algorithm>
#include <cstring>
#include <random>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace {

using Random = std::minstd_rand;

qsizetype below(Random &random, qsizetype bound)
{
    return qsizetype(random() % std::max<quint64>(quint64(bound), 1));
}

/// What libFuzzer itself makes of `bytes`.
QByteArray mutated(QByteArray bytes, qsizetype room = 24)
{
    const qsizetype size = bytes.size();
    bytes.resize(size + room);
    const size_t now = LLVMFuzzerMutate(reinterpret_cast<uint8_t *>(bytes.data()), size_t(size),
                                        size_t(bytes.size()));
    bytes.resize(qsizetype(now));
    return bytes;
}

/// `line` with other content, but its head as it was: what follows the fourth tab.
QByteArray withMutatedContent(const QByteArray &line)
{
    qsizetype at = 0;
    for (int i = 0; i < 4 && at >= 0; ++i)
        at = line.indexOf('\t', at + 1);
    if (at < 0)
        return mutated(line);
    return line.first(at + 1) + mutated(line.sliced(at + 1)).replace('\n', ' ');
}

void mutateLines(QList<QByteArray> &lines, Random &random)
{
    static const QByteArray kSpecial[] = {
        ".", "~", "", QByteArray(7, '\0'), "\r", "+\t2\t\t-\tid", "=\t0\t\t-\t", "-\t1\t\t-\tB"};
    const qsizetype from = below(random, lines.size());
    const qsizetype to = below(random, lines.size() + 1);
    switch (below(random, 8)) {
    case 0:
        lines.insert(to, QByteArray(lines.at(from)));
        break;
    case 1:
        lines.removeAt(from);
        break;
    case 2:
        lines.swapItemsAt(from, below(random, lines.size()));
        break;
    case 3:
        lines.insert(to, kSpecial[below(random, std::size(kSpecial))]);
        break;
    case 4:
        lines[from] += '\r';
        break;
    case 5: // The line end is lost.
        if (from + 1 < lines.size())
            lines[from] += lines.takeAt(from + 1);
        break;
    case 6:
        lines[from] = mutated(lines.at(from));
        break;
    default:
        lines[from] = withMutatedContent(lines.at(from));
        break;
    }
}

QByteArray mutatedFile(const QByteArray &file, const QString &key, Random &random)
{
    QList<QByteArray> lines = file.split('\n');
    for (qsizetype i = 1 + below(random, 3); i > 0 && !lines.isEmpty(); --i)
        mutateLines(lines, random);
    const QByteArray joined = lines.join('\n');
    switch (below(random, 6)) {
    case 0:
        return joined;
    case 1:
        return Fuzz::signedAnew(joined, key, Fuzz::SignCommits::No);
    case 2: { // Signed, and then cut.
        const QByteArray whole = Fuzz::signedAnew(joined, key, Fuzz::SignCommits::Yes);
        return whole.first(below(random, whole.size() + 1));
    }
    case 3: { // Signed, and then damaged in one byte.
        QByteArray whole = Fuzz::signedAnew(joined, key, Fuzz::SignCommits::Yes);
        if (!whole.isEmpty())
            whole[below(random, whole.size())] = char(random());
        return whole;
    }
    default:
        return Fuzz::signedAnew(joined, key, Fuzz::SignCommits::Yes);
    }
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize,
                                          unsigned int seed)
{
    constexpr auto kControl = size_t(Fuzz::StoreControl::kSize);
    Random random(seed + 1);
    if (size <= kControl || below(random, 6) == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    if (below(random, 6) == 0) {
        data[below(random, qsizetype(kControl))] = uint8_t(random());
        return size;
    }
    const QByteArray input = Fuzz::bytesOf(data, size);
    const Fuzz::StoreControl control(input);
    const QByteArray file = mutatedFile(input.sliced(kControl), control.signKey, random);
    const size_t taken = std::min(size_t(file.size()), maxSize - kControl);
    std::memcpy(data + kControl, file.constData(), taken);
    return kControl + taken;
}
