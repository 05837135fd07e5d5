// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// replay PATH...: tries every input in the folders, or the single ones named, and tells how many
// there were. A broken rule aborts; the input's name is on the line before.

#include "Fuzz.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <cstdio>

namespace {

QStringList inputsAt(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList names;
    for (QDirIterator it(path, QDir::Files, QDirIterator::Subdirectories); it.hasNext();)
        names.append(it.next());
    names.sort();
    return names;
}

} // namespace

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int tried = 0;
    for (int i = 1; i < argc; ++i) {
        for (const QString &name : inputsAt(QFile::decodeName(argv[i]))) {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(name));
                return EXIT_FAILURE;
            }
            const QByteArray bytes = file.readAll();
            std::printf("%s\n", qPrintable(name));
            std::fflush(stdout);
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(bytes.constData()),
                                   size_t(bytes.size()));
            ++tried;
        }
    }
    std::printf("%d inputs, no rule broken\n", tried);
    return tried > 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
