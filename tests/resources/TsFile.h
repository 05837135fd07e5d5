// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtCore/QXmlStreamReader>

namespace Texts {

struct Message
{
    QString source;
    QString translation;
};

/// A translation source, read as strictly as ours are written: one context, and in a message
/// nothing but its source and its finished translation.
struct TsFile
{
    QString version;
    QString language; ///< Null when the file has no such attribute.
    QString context; ///< Null when the file has none.
    QList<Message> messages;
    QString error; ///< Empty when the file is as it should be.
};

namespace Detail {

/// Refuses attributes other than the ones named.
inline void allowAttributes(QXmlStreamReader &xml, const QStringList &names)
{
    const QXmlStreamAttributes attributes = xml.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        if (!names.contains(attribute.name()))
            xml.raiseError(QLatin1String("attribute ") + attribute.name().toString());
    }
}

/// Refuses the element that was just begun.
inline void refuse(QXmlStreamReader &xml)
{
    xml.raiseError(QLatin1String("element ") + xml.name().toString());
}

/// The text of the next element, which must be the one named.
inline QString readText(QXmlStreamReader &xml, const char *name)
{
    if (!xml.readNextStartElement() || xml.name() != QLatin1String(name)) {
        xml.raiseError(QLatin1String("no ") + QLatin1String(name));
        return {};
    }
    allowAttributes(xml, {});
    return xml.readElementText();
}

inline void readContext(QXmlStreamReader &xml, TsFile &file)
{
    if (!file.context.isNull() || xml.name() != QLatin1String("context"))
        refuse(xml);
    file.context = readText(xml, "name");
    while (xml.readNextStartElement()) {
        if (xml.name() != QLatin1String("message"))
            refuse(xml);
        allowAttributes(xml, {});
        const QString source = readText(xml, "source");
        file.messages.append({source, readText(xml, "translation")});
        if (xml.readNextStartElement())
            refuse(xml);
    }
}

} // namespace Detail

inline TsFile readTsFile(const QString &path)
{
    TsFile file;
    QFile device(path);
    if (!device.open(QIODevice::ReadOnly)) {
        file.error = device.errorString();
        return file;
    }
    QXmlStreamReader xml(&device);
    if (xml.readNextStartElement() && xml.name() == QLatin1String("TS")) {
        Detail::allowAttributes(xml, {QStringLiteral("version"), QStringLiteral("language")});
        file.version = xml.attributes().value(QLatin1String("version")).toString();
        if (xml.attributes().hasAttribute(QLatin1String("language")))
            file.language = xml.attributes().value(QLatin1String("language")).toString();
    } else {
        xml.raiseError(QStringLiteral("no TS"));
    }
    while (xml.readNextStartElement())
        Detail::readContext(xml, file);
    file.error = xml.errorString();
    return file;
}

} // namespace Texts
