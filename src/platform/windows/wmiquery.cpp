// SPDX-License-Identifier: GPL-3.0-or-later
// WMI over COM.

#include "windowsplatform.h"

#include "comobjects.h"

#include <wbemidl.h>

using namespace Qt::StringLiterals;

namespace {

/** COM for the calling thread, as long as the object. */
class ComSession
{
public:
    ComSession()
        : result_(CoInitializeEx(nullptr, COINIT_MULTITHREADED))
    {
    }
    ~ComSession()
    {
        // A thread that had COM set up in another way keeps it: this object has no part in that.
        if (SUCCEEDED(result_))
            CoUninitialize();
    }
    Q_DISABLE_COPY_MOVE(ComSession)

    HRESULT result() const { return result_; }

private:
    HRESULT result_;
};

/** The text of a property, or the first 32 bits of anything else as a signed number. */
QString propertyText(IWbemClassObject *object, const QString &name)
{
    VARIANT value{};
    const HRESULT result = object->Get(reinterpret_cast<const wchar_t *>(name.utf16()), 0, &value, nullptr, nullptr);
    QString text;
    if (SUCCEEDED(result) && value.vt == VT_BSTR)
        text = QString::fromWCharArray(value.bstrVal, static_cast<qsizetype>(SysStringLen(value.bstrVal)));
    else
        text = QString::number(value.lVal);
    VariantClear(&value);
    return text;
}

} // namespace

/** Sets COM up for the calling thread and undoes it, so that any thread may call it. */
WmiAnswer WindowsPlatform::queryWmi(const QString &className, const QStringList &properties) const
{
    WmiAnswer answer;
    const auto failed = [&answer](WmiStep step, HRESULT result) {
        if (FAILED(result))
            answer.failures.append({step, static_cast<qint32>(result)});
        return FAILED(result);
    };

    const ComSession session;
    failed(WmiStep::InitializeCom, session.result());

    ComPointer<IWbemLocator> locator;
    if (failed(WmiStep::CreateLocator,
               CoCreateInstance(CLSID_WbemLocator, nullptr, CLSCTX_INPROC_SERVER, IID_IWbemLocator,
                                reinterpret_cast<void **>(locator.receive()))))
        return answer;

    ComPointer<IWbemServices> services;
    const ComText space(u"ROOT\\CIMV2"_s);
    if (failed(WmiStep::Connect,
               locator->ConnectServer(space.get(), nullptr, nullptr, nullptr, 0, nullptr, nullptr, services.receive())))
        return answer;
    if (failed(WmiStep::SetBlanket,
               CoSetProxyBlanket(services.get(), RPC_C_AUTHN_WINNT, RPC_C_AUTHZ_NONE, nullptr, RPC_C_AUTHN_LEVEL_CALL,
                                 RPC_C_IMP_LEVEL_IMPERSONATE, nullptr, EOAC_NONE)))
        return answer;

    ComPointer<IEnumWbemClassObject> instances;
    const ComText language(u"WQL"_s);
    const ComText query(u"SELECT * FROM "_s + className);
    if (failed(WmiStep::Query,
               services->ExecQuery(language.get(), query.get(), WBEM_FLAG_FORWARD_ONLY | WBEM_FLAG_RETURN_IMMEDIATELY,
                                   nullptr, instances.receive())))
        return answer;

    for (;;) {
        ComPointer<IWbemClassObject> object;
        ULONG count = 0;
        instances->Next(static_cast<LONG>(WBEM_INFINITE), 1, object.receive(), &count);
        if (count == 0)
            return answer;
        QStringList texts;
        for (const QString &property : properties)
            texts.append(propertyText(object.get(), property));
        answer.instances.append(texts);
    }
}
