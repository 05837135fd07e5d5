// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Shares a store with other processes.
//
// `sharer FILE commit NAME COUNT` commits the records NAME-0, NAME-1, ... one at a time, purging
// now and then, and prints a dot for each that was acknowledged. `sharer FILE hold` keeps the store
// open with a batch that is not written, prints a dot, and waits to be killed.

#include "support/Store.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

#include <unistd.h>

using namespace Support;

namespace {

bool say()
{
    return ::write(STDOUT_FILENO, ".", 1) == 1;
}

bool commitAll(const QString &path, const QString &name, int count)
{
    QFile file(path);
    VDBText store;
    for (int i = 0; i < count; ++i) {
        store.setKey({}, toWrite());
        if (!store.open(&file)
            || !store.insert(record(u"%1-%2"_s.arg(name).arg(i), QString::number(i))))
            return false;
        if (i % 50 == 49 && !store.purge())
            return false;
        store.close();
        if (!store.wasDurable() || !say())
            return false;
    }
    return true;
}

void hold(const QString &path)
{
    QFile file(path);
    VDBText store;
    store.setKey({}, toWrite());
    if (!store.open(&file))
        return;
    store.insert(record(u"never written"_s, u"x"_s));
    say();
    for (;;)
        ::pause();
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(2) == u"commit"_s)
        return commitAll(arguments.value(1), arguments.value(3), arguments.value(4).toInt()) ? 0
                                                                                             : 1;
    hold(arguments.value(1));
    return 1;
}
