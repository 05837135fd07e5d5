// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Writer.h"

#include <QtCore/QString>

// The pieces of a page in the language of man(7).

namespace Norvane::Kilnjet::Tool {

/// The text so that it stands on the page as it is. Of a literal, dashes can be copied from there.
QString escaped(const QString &text, bool isLiteral = false);
/// A line of the page, which begins no request.
QString line(const QString &text);
/// Plain text, wrapped.
QString filled(const QString &text);
QString bold(const QString &text);
QString italic(const QString &text);
/// The beginning of a page.
QString heading(const QString &name, const QString &section, const Edition &edition,
                const QString &book);
QString nameSection(const QString &name, const QString &summary);

} // namespace Norvane::Kilnjet::Tool
