// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

// A database file as docs/file-format.md describes it, read and written apart from the library: to
// sign what a mutation has changed, and to know better than the store what a line says.

namespace Fuzz {

/// What the first four bytes of an input decide; the file follows them.
struct StoreControl
{
    static constexpr qsizetype kSize = 4;

    explicit StoreControl(QByteArrayView input);

    QString openKey; ///< The key to open the file with; mostly the one that signs.
    QString signKey; ///< The key to sign mutated lines with.
    bool edits = true; ///< Whether to change what is stored, or to add only.
    bool purges = false; ///< Whether a purge follows the commit, or else a cut.
    quint8 choice = 0; ///< Which record to change.
    quint16 cut = 0; ///< After which byte of a commit the power fails.
};

enum class SignCommits
{
    No,
    Yes
};

/// What a file's bytes say. A byte order mark is a character like others, also in front, where
/// QString::fromUtf8() drops it.
QString textOf(QByteArrayView utf8);

/// `file` with every line that has the shape of a signed one signed anew, headers included; with
/// SignCommits::Yes the commit lines also say what stands before them.
QByteArray signedAnew(QByteArrayView file, const QString &key, SignCommits commits);

/// The name of the key field, from the first sound copy of the header; nothing when no copy is
/// found, or none that is spelt as we spell it.
std::optional<QByteArray> keyFieldOf(QByteArrayView file);

/// The key of the record whose line begins at `offset`, as the file spells it; nothing when it
/// holds an escape. Null when there is none.
std::optional<QByteArray> recordKeyAt(QByteArrayView file, qsizetype offset, bool isSound,
                                      const QByteArray &keyField);

} // namespace Fuzz
