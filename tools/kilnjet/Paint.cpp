// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Paint.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

QString Paint::swatch(QRgb colour) const
{
    if (!hasSwatches())
        return u"  "_s;
    return u"\u001b[48;2;%1;%2;%3m  \u001b[0m"_s.arg(qRed(colour))
        .arg(qGreen(colour))
        .arg(qBlue(colour));
}

QString Paint::painted(int code, const QString &text) const
{
    if (m_colour == Colour::Off)
        return text;
    // Not through arg(): the text may hold a percent sign itself.
    return u"\u001b["_s + QString::number(code) + u'm' + text + u"\u001b[0m"_s;
}

} // namespace Norvane::Kilnjet::Tool
