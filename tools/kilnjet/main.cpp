// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Run.h"

#include <kilnjet/VKilnjetInfo.h>

#include <QtCore/QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

/// The tool words its own messages; warnings of the libraries beneath would stand between them.
void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(ignoreMessage);
    // Images without a resolution get the one that they have in a program with a screen.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"kilnjet"_s);
    QCoreApplication::setApplicationVersion(Norvane::Kilnjet::VKilnjetInfo::version().toString());
    return Norvane::Kilnjet::Tool::run(QCoreApplication::arguments().mid(1));
}
