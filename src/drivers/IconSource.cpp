// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "IconSource.h"

#include <QtCore/QBuffer>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

IconSource::~IconSource() = default;

bool IconSource::isSameAs(const IconSource &other) const
{
    return this == &other;
}

EncodedImage encodedAsPng(const QImage &image)
{
    EncodedImage encoded{u"png"_s, {}};
    QBuffer buffer(&encoded.data);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "png", -1))
        encoded.data.clear();
    return encoded;
}

} // namespace Norvane::Kilnjet
