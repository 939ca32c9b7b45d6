// SPDX-License-Identifier: GPL-3.0-or-later
// Owners of what COM hands out.

#pragma once

#include "systemobjects.h"

#include <oleauto.h>

template<typename Interface>
class ComPointer
{
public:
    ComPointer() = default;
    ~ComPointer()
    {
        if (object_)
            object_->Release();
    }
    Q_DISABLE_COPY_MOVE(ComPointer)

    Interface **receive() { return &object_; }
    Interface *get() const { return object_; }
    Interface *operator->() const { return object_; }

private:
    Interface *object_ = nullptr;
};

/** A text as COM takes it. */
class ComText
{
public:
    explicit ComText(const QString &text)
        : text_(SysAllocStringLen(reinterpret_cast<const OLECHAR *>(text.utf16()), static_cast<UINT>(text.size())))
    {
        if (!text_)
            qFatal("out of memory");
    }
    ~ComText() { SysFreeString(text_); }
    Q_DISABLE_COPY_MOVE(ComText)

    BSTR get() const { return text_; }

private:
    BSTR text_;
};
