// SPDX-License-Identifier: GPL-3.0-or-later

#include "standinfonts.h"

#include <QApplication>
#include <QFont>

using namespace Qt::StringLiterals;

void useStandInFonts()
{
    QFont::insertSubstitution(u"Segoe UI"_s, u"Open Sans"_s);
    QFont::insertSubstitution(u"Lucida Console"_s, u"DejaVu Sans Mono"_s);
    QApplication::setFont(QFont(u"Segoe UI"_s, 9));
}
