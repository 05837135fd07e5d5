// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Command.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Norvane::Kilnjet::Tool {

/// The words that can be offered without asking a database; empty for all other kinds.
QStringList wordList(const Words &words);

/// What the head of every page says. It is the build that names the day, not the clock: the same
/// sources make the same pages.
struct Edition
{
    QString version;
    QString date; ///< Such as "2026-11-21".
};

/// The page of a command for the first section of the manual; of the tool when it is null.
QString manPage(const Command *command, const Edition &edition);
/// The page `name` of the fifth section, from a text in Markdown of the kind that docs/ holds.
QString formatPage(const QString &name, const QString &summary, const QString &markdown,
                   const Edition &edition);

/// What makes bash complete command lines of the tool.
QString bashCompletion();
QString zshCompletion();
QString fishCompletion();

} // namespace Norvane::Kilnjet::Tool
