// SPDX-License-Identifier: GPL-3.0-or-later
// Who vouches for a program.

#include "heldfile.h"

#include <softpub.h>
#include <wintrust.h>

namespace {

/** A check of a file's signature; its findings live as long as the object. */
class SignatureCheck
{
public:
    explicit SignatureCheck(const HeldFile &file)
        : place_(file.place())
    {
        subject_.cbStruct = sizeof(subject_);
        subject_.pcwszFilePath = wide(place_);
        subject_.hFile = file.handle();
        data_.cbStruct = sizeof(data_);
        data_.dwUIChoice = WTD_UI_NONE;
        data_.fdwRevocationChecks = WTD_REVOKE_NONE;
        data_.dwUnionChoice = WTD_CHOICE_FILE;
        data_.pFile = &subject_;
        data_.dwStateAction = WTD_STATEACTION_VERIFY;
        // Without a way to the internet the answer is the same.
        data_.dwProvFlags = WTD_CACHE_ONLY_URL_RETRIEVAL | WTD_REVOCATION_CHECK_NONE;
        result_ = WinVerifyTrust(noWindow(), &action_, &data_);
    }
    ~SignatureCheck()
    {
        data_.dwStateAction = WTD_STATEACTION_CLOSE;
        WinVerifyTrust(noWindow(), &action_, &data_);
    }
    Q_DISABLE_COPY_MOVE(SignatureCheck)

    /** The signer of a valid signature; null where there is none. */
    CRYPT_PROVIDER_SGNR *signer() const
    {
        if (result_ != ERROR_SUCCESS)
            return nullptr;
        CRYPT_PROVIDER_DATA *findings = WTHelperProvDataFromStateData(data_.hWVTStateData);
        return findings != nullptr ? WTHelperGetProvSignerFromChain(findings, 0, FALSE, 0) : nullptr;
    }

private:
    static HWND noWindow() { return static_cast<HWND>(INVALID_HANDLE_VALUE); }

    QString place_;
    GUID action_ = WINTRUST_ACTION_GENERIC_VERIFY_V2;
    WINTRUST_FILE_INFO subject_{};
    WINTRUST_DATA data_{};
    LONG result_ = 0;
};

bool isMicrosofts(PCCERT_CONTEXT certificate)
{
    wchar_t organization[64] = {};
    // "O"; the function wants it writable.
    char attribute[] = szOID_ORGANIZATION_NAME;
    CertGetNameStringW(certificate, CERT_NAME_ATTR_TYPE, 0, attribute, organization, std::size(organization));
    return wcscmp(organization, L"Microsoft Corporation") == 0;
}

/** Microsoft has roots for its system and others for its applications, and Windows tells them by their keys. */
bool endsInMicrosoftsRoot(PCCERT_CHAIN_CONTEXT chain)
{
    for (const DWORD roots : {DWORD(0), DWORD(MICROSOFT_ROOT_CERT_CHAIN_POLICY_CHECK_APPLICATION_ROOT_FLAG)}) {
        CERT_CHAIN_POLICY_PARA policy{};
        policy.cbSize = sizeof(policy);
        policy.dwFlags = roots;
        CERT_CHAIN_POLICY_STATUS status{};
        status.cbSize = sizeof(status);
        if (CertVerifyCertificateChainPolicy(CERT_CHAIN_POLICY_MICROSOFT_ROOT, chain, &policy, &status)
            && status.dwError == ERROR_SUCCESS)
            return true;
    }
    return false;
}

} // namespace

bool isSignedByMicrosoft(const HeldFile &file)
{
    const SignatureCheck check(file);
    CRYPT_PROVIDER_SGNR *signer = check.signer();
    if (signer == nullptr || signer->pChainContext == nullptr)
        return false;
    const CRYPT_PROVIDER_CERT *certificate = WTHelperGetProvCertFromChain(signer, 0);
    return certificate != nullptr && isMicrosofts(certificate->pCert) && endsInMicrosoftsRoot(signer->pChainContext);
}
