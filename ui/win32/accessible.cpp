#include "ui/win32/accessible.h"

#include <initguid.h>
// In this order.
#include <oleacc.h>

#include <memory>

#include "ui/win32/com.h"
#include "ui/win32/system_call.h"
#include "ui/win32/utf16.h"

namespace keplin::win32 {
namespace {

constexpr const wchar_t* kAutomation = L"uiautomationcore.dll";

// Of functions that not every system has; a control is told of by its provider.
using Provider = IUnknown;
using ClientsAreListening = BOOL WINAPI();
using HostProviderFromWindow = HRESULT WINAPI(HWND, Provider**);
using RaiseNotification = HRESULT WINAPI(Provider*, int kind, int processing, BSTR text,
                                         BSTR activity);
constexpr int kKindOther = 4;
constexpr int kProcessAll = 2;  // none is left out over the next

struct FreeText {
    void operator()(wchar_t* text) const { SysFreeString(text); }
};
using Text = std::unique_ptr<wchar_t, FreeText>;

// False on a system that has no such notification.
bool Notify(HWND control, const std::wstring& text) {
    static const auto provide =
        SystemCall<HostProviderFromWindow>(kAutomation, "UiaHostProviderFromHwnd");
    static const auto raise =
        SystemCall<RaiseNotification>(kAutomation, "UiaRaiseNotificationEvent");
    Com<Provider> provider;
    if (!provide || !raise || provide(control, provider.Out()) != S_OK) return false;
    const Text spoken(SysAllocString(text.c_str()));
    const Text activity(SysAllocString(L"keplin.news"));
    return raise(provider.Get(), kKindOther, kProcessAll, spoken.get(), activity.get()) == S_OK;
}

}  // namespace

bool IsHeard() {
    static const auto listening =
        SystemCall<ClientsAreListening>(kAutomation, "UiaClientsAreListening");
    BOOL reader = FALSE;
    SystemParametersInfoW(SPI_GETSCREENREADER, 0, &reader, 0);
    return reader || (listening && listening());
}

void Describe(HWND control, const std::string& text) {
    static const Com<IAccPropServices> properties =
        Com<IAccPropServices>::Make(CLSID_AccPropServices, IID_IAccPropServices);
    if (!properties) return;
    const auto object = static_cast<DWORD>(OBJID_CLIENT);
    properties->SetHwndPropStr(control, object, CHILDID_SELF, PROPID_ACC_DESCRIPTION,
                               ToWide(text).c_str());
}

// Where there are no notifications, a reader of those days reads the description again.
void Announce(HWND control, const std::string& text) {
    if (Notify(control, ToWide(text))) return;
    for (const DWORD event : {EVENT_OBJECT_DESCRIPTIONCHANGE, EVENT_OBJECT_LIVEREGIONCHANGED})
        NotifyWinEvent(event, control, OBJID_CLIENT, CHILDID_SELF);
}

}  // namespace keplin::win32
