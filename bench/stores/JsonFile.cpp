// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "JsonFile.h"

#include "DurableFile.h"

#include <QtCore/QFile>
#include <QtCore/QUuid>

namespace Bench {

namespace {

constexpr QByteArrayView kBeforeId = "{\"id\":\"";
constexpr QByteArrayView kBeforeText = "\",\"driver\":";
constexpr qsizetype kIdSize = 38;
constexpr qsizetype kTextAt = kBeforeId.size() + kIdSize + kBeforeText.size();

void append(QByteArray &bytes, const QByteArray &key, const QByteArray &text)
{
    bytes += kBeforeId;
    bytes += QUuid::fromRfc4122(key).toByteArray();
    bytes += kBeforeText;
    bytes += text;
    bytes += '}';
}

} // namespace

bool JsonFile::open(const QString &folder)
{
    m_path = folder + QLatin1String("/drivers.json");
    if (!QFile::exists(m_path))
        return replaceFile(m_path, m_shape == Array ? "[\n]\n" : "");
    const QByteArray bytes = readFile(m_path);
    // We wrote it: what begins like an element is one, up to its last brace.
    for (qsizetype start = 0; start < bytes.size();) {
        qsizetype end = bytes.indexOf('\n', start);
        if (end < 0)
            return false;
        const QByteArrayView line = QByteArrayView(bytes).sliced(start, end - start);
        start = end + 1;
        if (!line.startsWith(kBeforeId))
            continue;
        const QByteArrayView id = line.sliced(kBeforeId.size(), kIdSize);
        const qsizetype last = line.lastIndexOf('}');
        m_texts.insert(QUuid::fromString(QLatin1StringView(id)).toRfc4122(),
                       line.sliced(kTextAt, last - kTextAt).toByteArray());
    }
    return true;
}

bool JsonFile::readAll(const Visitor &visit)
{
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        if (!visit(it.key(), it.value()))
            return false;
    }
    return true;
}

bool JsonFile::write(const QList<Change> &changes)
{
    for (const Change &change : changes) {
        if (change.text.isNull())
            m_texts.remove(change.key);
        else
            m_texts.insert(change.key, change.text);
    }
    QByteArray bytes = m_shape == Array ? "[\n" : "";
    for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it) {
        append(bytes, it.key(), it.value());
        bytes += m_shape == Array && std::next(it) != m_texts.cend() ? ",\n" : "\n";
    }
    if (m_shape == Array)
        bytes += "]\n";
    return replaceFile(m_path, bytes);
}

std::unique_ptr<KeyValueStore> makeJsonLines()
{
    return std::make_unique<JsonFile>(JsonFile::Lines);
}

} // namespace Bench
