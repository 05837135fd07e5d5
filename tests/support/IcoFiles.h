// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QDataStream>
#include <QtCore/QList>

// Files with images of several depths, which Qt cannot write.

namespace Support {

/// An image of 16 by 16 pixels as an .ico holds it: red with 32 bits a pixel, else black.
inline QByteArray icoImage(quint16 bits)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint32(40) << qint32(16) << qint32(32) << quint16(1) << bits;
    for (int field = 0; field < 6; ++field)
        out << quint32(0);
    if (bits == 1)
        out << quint32(0) << quint32(0x00FFFFFF);
    for (int word = 0; word < (bits == 1 ? 16 : 256); ++word)
        out << quint32(bits == 1 ? 0 : 0xFFFF0000);
    for (int line = 0; line < 16; ++line)
        out << quint32(0); // The mask: all of it is opaque.
    return bytes;
}

/// An .ico of such images, in this order.
inline QByteArray icoWith(const QList<quint16> &depths)
{
    QByteArray bytes;
    QByteArray images;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16(0) << quint16(1) << quint16(depths.size());
    for (const quint16 depth : depths) {
        const QByteArray image = icoImage(depth);
        out << quint8(16) << quint8(16) << quint8(depth == 1 ? 2 : 0) << quint8(0) << quint16(1)
            << depth << quint32(image.size()) << quint32(6 + 16 * depths.size() + images.size());
        images += image;
    }
    return bytes + images;
}

} // namespace Support
