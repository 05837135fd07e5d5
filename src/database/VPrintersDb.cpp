// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VPrintersDb.h>

#include "VPrintersDb_p.h"

#include "enums/ChannelV100Sort_T.h"
#include "enums/Channel_T.h"
#include "enums/ElaborationType_T.h"
#include "enums/LevelManagement_T.h"
#include "enums/PrinterClass_T.h"
#include "enums/PrinterFacesMode_T.h"
#include "enums/PrinterFileCompression_T.h"
#include "enums/PrinterFileProtection_T.h"

#include <vcore/MetadataFlags.h>
#include <vimaging/ResolutionUnit.h>

#include <QtCore/QFile>
#include <QtCore/QLocale>
#include <QtCore/QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

// How long after the last change it is written.
constexpr std::chrono::milliseconds kCommitDelay(5000);

/// Builds what writing a record needs. Static objects are destroyed in the reverse order of their
/// making: a database that is a static object of its host commits on its way out, and these must
/// still be there.
void buildStaticObjects()
{
    const QLocale locale; // The default one, in which stored names are written, is one of Qt's.
    ChannelV100Sort_T::instance();
    Channel_T::instance();
    ElaborationType_T::instance();
    LevelManagement_T::instance();
    PrinterClass_T::instance();
    PrinterFacesMode_T::instance();
    PrinterFileCompression_T::instance();
    PrinterFileProtection_T::instance();
    Imaging::ResolutionUnit_T::instance();
    MetadataFlags_T::instance();
}

} // namespace

VPrintersDb::VPrintersDb(const QString &fileName, const QString &key, QObject *parent)
    : VPrintersDb(static_cast<QIODevice *>(nullptr), key, parent)
{
    d->device = new QFile(fileName, this);
}

VPrintersDb::VPrintersDb(QIODevice *device, const QString &key, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<VPrintersDbPrivate>())
{
    buildStaticObjects();
    d->key = key;
    d->device = device;
    d->jobs = std::make_shared<DbJobs>([this](DbJobs::Job job) {
        if (job == DbJobs::Job::Load)
            _init();
        else
            _commit();
    });
    connect(this, &VPrintersDb::initialized, this, &VPrintersDb::onInitialized);
    connect(this, &VPrintersDb::committed, this, &VPrintersDb::onCommitted);
    connect(this, &VPrintersDb::initialized, this, &VPrintersDb::ready);
}

VPrintersDb::~VPrintersDb()
{
    const auto guard = d->lockedAfterJobs();
    // A slot connected to committed() may ask for one more commit: there is nobody left to do it.
    d->jobs->close();
    _commit();
}

QString VPrintersDb::defaultFilename()
{
    return u"Printers.tdb"_s;
}

void VPrintersDb::init(bool background)
{
    d->jobs->wait();
    d->background = background;
    if (background)
        d->jobs->schedule(DbJobs::Job::Load);
    else
        _init();
}

bool VPrintersDb::isReady() const
{
    return d->jobs->isIdle() && !d->null;
}

bool VPrintersDb::isNull() const
{
    return d->null;
}

bool VPrintersDb::isDirty() const
{
    const auto guard = d->locked();
    return !d->dirtyIds.isEmpty();
}

void VPrintersDb::waitForFinished()
{
    d->jobs->wait();
}

void VPrintersDb::commit()
{
    if (d->background) {
        d->jobs->schedule(DbJobs::Job::Commit);
        return;
    }
    const auto guard = d->lockedAfterJobs();
    _commit();
}

void VPrintersDb::onInitialized()
{
    // One timer more for every load: each is restarted by a change, and the commits of the later
    // ones find nothing to write.
    auto *timer = new QTimer(this);
    timer->setSingleShot(true);
    timer->setInterval(kCommitDelay);
    connect(this, &VPrintersDb::changed, timer, qOverload<>(&QTimer::start));
    connect(timer, &QTimer::timeout, this, &VPrintersDb::commit);
}

void VPrintersDb::onCommitted() { }

} // namespace Norvane::Kilnjet
