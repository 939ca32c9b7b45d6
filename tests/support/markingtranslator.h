// SPDX-License-Identifier: GPL-3.0-or-later
// A language in which every text of one context stands in guillemets.

#pragma once

#include <QCoreApplication>
#include <QTranslator>

#include <cstring>

/** In force as long as the object lives. */
class MarkingTranslator : public QTranslator
{
public:
    explicit MarkingTranslator(const char *context)
        : context_(context)
    {
        QCoreApplication::installTranslator(this);
    }

    QString translate(const char *context, const char *text, const char *, int) const override
    {
        return std::strcmp(context, context_) == 0 ? u'\u00ab' + QString::fromUtf8(text) + u'\u00bb' : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const char *context_;
};
