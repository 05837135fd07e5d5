// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/Schemas.h"

#include <QtCore/QProcess>

// The tests define RECORD_VALIDATOR, the script that validates against the JSON Schemas.

namespace Support {

/// A validator of its own process: somebody else's reading of the standard, not ours.
class SchemaValidator
{
public:
    SchemaValidator()
    {
        // By its path: only Debian's Python sees Debian's packages. Isolated from the environment.
        m_process.start(u"/usr/bin/python3"_s,
                        {u"-I"_s, QStringLiteral(RECORD_VALIDATOR), schemaFolder().path()});
        if (!m_process.waitForStarted())
            m_failure = u"/usr/bin/python3 does not start: install Debian's python3-jsonschema, "
                        u"or run ./dev test, which does"_s;
        else if (readLine() != "ready\n")
            m_failure = failed();
    }
    ~SchemaValidator()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(SchemaValidator)

    /// Why there can be no validation; empty when there can.
    QString failure() const { return m_failure; }

    /// What is wrong with the value by NAME.schema.json, or by a part of that as
    /// "tool-output#/$defs/list" names it; each as "POINTER: MESSAGE".
    QStringList errors(const QString &name, const QJsonValue &value)
    {
        const QJsonObject request{{u"schema"_s, name}, {u"instance"_s, value}};
        m_process.write(QJsonDocument(request).toJson(QJsonDocument::Compact) + '\n');
        const QJsonDocument answer = QJsonDocument::fromJson(readLine());
        if (!answer.isArray())
            return {failed()};
        QStringList errors;
        const QJsonArray array = answer.array();
        for (const QJsonValue &error : array)
            errors.append(error.toString());
        return errors;
    }

private:
    QByteArray readLine()
    {
        constexpr int kPatience = 120'000;
        while (!m_process.canReadLine() && m_process.waitForReadyRead(kPatience)) { }
        return m_process.readLine();
    }

    QString failed()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
        return u"the validator failed: "_s + QString::fromUtf8(m_process.readAllStandardError());
    }

    QProcess m_process;
    QString m_failure;
};

} // namespace Support
