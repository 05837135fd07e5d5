// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// A file that is made beside its place and takes it, in one step, when it is complete. What stood
/// there before is whole until then; what never took its place is removed.
///
/// Throws a Failure whenever something does not work.
class NewFile
{
public:
    /// Behind a symbolic link the file itself is meant, not the link.
    explicit NewFile(const QString &place);
    Q_DISABLE_COPY_MOVE(NewFile)
    ~NewFile();

    /// Where to make it. Nothing is there yet.
    QString path() const { return m_path; }
    /// Moves the file, which is closed and synced, to its place, with the permissions of the file
    /// there. All of that survives a power cut.
    void takePlace();

private:
    [[noreturn]] void fail(const QString &why, const QString &hint = QString()) const;

    QString m_name; ///< The place as the user named it.
    QString m_place;
    QString m_path;
};

} // namespace Norvane::Kilnjet::Tool
