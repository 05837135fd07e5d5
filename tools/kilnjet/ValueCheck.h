// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "RecordSchema.h"

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QString>

#include <optional>

namespace Norvane::Kilnjet::Tool {

/// What is wrong with one value.
struct Complaint
{
    QString reason;
    QString hint = {};
};

/// How a message shows a JSON value: texts in quotes and shortened, others by what they are.
QString describe(const QJsonValue &value);

/// Checks a value that holds no further ones; arrays and objects are never complained about here.
std::optional<Complaint> checkValue(const QJsonValue &value, const KeyRule &rule);

/// Checks one name of an enumeration, several when it is one of flags.
std::optional<Complaint> checkEnumName(const QJsonValue &value, const QString &enumeration);

/// Checks that an image's bytes decode, once its keys are sound.
std::optional<Complaint> checkImage(const QJsonObject &image);

/// Checks that `value` is an array or an object, as `type` wants it.
std::optional<Complaint> checkContainer(const QJsonValue &value, ValueType type);

} // namespace Norvane::Kilnjet::Tool
