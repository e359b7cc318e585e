// The object of a control's window that a screen reader meets.
#pragma once

#include "desktop/win32/ControlWindow.h"
#include "desktop/win32/Counted.h"

#include <oleacc.h>

namespace desktop_win32 {

// The system's own object of the window, under the name that the toolkit gives the control. It can
// be held longer than the window stands.
class ControlAccessible : public Counted<IAccessible, IDispatch> {
public:
    ControlAccessible(const std::shared_ptr<ControlWindow>& window, IAccessible* stock)
        : stock_(stock), window_(window) {}

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        if (!isSelf(child))
            return stock_->get_accName(child, name);
        const auto it = window();
        if (!it)
            return CO_E_OBJNOTCONNECTED;
        return give(it->control().spoken(), name);
    }

    STDMETHODIMP GetTypeInfoCount(UINT* count) override { return stock_->GetTypeInfoCount(count); }
    STDMETHODIMP GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) override {
        return stock_->GetTypeInfo(number, locale, info);
    }
    STDMETHODIMP GetIDsOfNames(REFIID id, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) override {
        return stock_->GetIDsOfNames(id, names, count, locale, ids);
    }
    STDMETHODIMP Invoke(DISPID member, REFIID id, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* failure, UINT* wrong) override {
        return stock_->Invoke(member, id, locale, flags, parameters, result, failure, wrong);
    }
    STDMETHODIMP get_accParent(IDispatch** to) override { return stock_->get_accParent(to); }
    STDMETHODIMP get_accChildCount(long* to) override { return stock_->get_accChildCount(to); }
    STDMETHODIMP get_accChild(VARIANT child, IDispatch** to) override {
        return stock_->get_accChild(child, to);
    }
    STDMETHODIMP get_accValue(VARIANT child, BSTR* to) override {
        return stock_->get_accValue(child, to);
    }
    STDMETHODIMP get_accDescription(VARIANT child, BSTR* to) override {
        return stock_->get_accDescription(child, to);
    }
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* to) override {
        return stock_->get_accRole(child, to);
    }
    STDMETHODIMP get_accState(VARIANT child, VARIANT* to) override {
        return stock_->get_accState(child, to);
    }
    STDMETHODIMP get_accHelp(VARIANT child, BSTR* to) override {
        return stock_->get_accHelp(child, to);
    }
    STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, long* topic) override {
        return stock_->get_accHelpTopic(file, child, topic);
    }
    STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* to) override {
        return stock_->get_accKeyboardShortcut(child, to);
    }
    STDMETHODIMP get_accFocus(VARIANT* to) override { return stock_->get_accFocus(to); }
    STDMETHODIMP get_accSelection(VARIANT* to) override { return stock_->get_accSelection(to); }
    STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* to) override {
        return stock_->get_accDefaultAction(child, to);
    }
    STDMETHODIMP accSelect(long how, VARIANT child) override {
        return stock_->accSelect(how, child);
    }
    STDMETHODIMP accLocation(long* left, long* top, long* width, long* height,
                             VARIANT child) override {
        return stock_->accLocation(left, top, width, height, child);
    }
    STDMETHODIMP accNavigate(long where, VARIANT from, VARIANT* to) override {
        return stock_->accNavigate(where, from, to);
    }
    STDMETHODIMP accHitTest(long left, long top, VARIANT* to) override {
        return stock_->accHitTest(left, top, to);
    }
    STDMETHODIMP accDoDefaultAction(VARIANT child) override {
        return stock_->accDoDefaultAction(child);
    }
    STDMETHODIMP put_accName(VARIANT child, BSTR name) override {
        return stock_->put_accName(child, name);
    }
    STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
        return stock_->put_accValue(child, value);
    }

protected:
    ~ControlAccessible() override { stock_->Release(); }

    // nullptr once it has gone.
    std::shared_ptr<ControlWindow> window() const {
        const auto it = window_.lock();
        return it && !it->gone() ? it : nullptr;
    }
    static bool isSelf(const VARIANT& child) {
        return child.vt == VT_I4 && child.lVal == CHILDID_SELF;
    }
    static HRESULT give(const std::string& text, BSTR* to) {
        *to = text.empty() ? nullptr : SysAllocString(wide(text).c_str());
        return text.empty() ? S_FALSE : S_OK;
    }
    static HRESULT give(long number, VARIANT* to) {
        to->vt = VT_I4;
        to->lVal = number;
        return S_OK;
    }

    IAccessible* const stock_;

private:
    std::weak_ptr<ControlWindow> window_;
};

// The answer to WM_GETOBJECT for the inside of the control's window; 0 leaves it to the system.
template <class Object>
LRESULT accessibleObject(const std::shared_ptr<ControlWindow>& window, WPARAM wParam) {
    IAccessible* stock = nullptr;
    if (FAILED(CreateStdAccessibleObject(window->handle(), OBJID_CLIENT, __uuidof(IAccessible),
                                         reinterpret_cast<void**>(&stock))))
        return 0;
    auto* const object = new Object(window, stock);
    const LRESULT result = LresultFromObject(__uuidof(IAccessible), wParam, object);
    object->Release();
    return result;
}

} // namespace desktop_win32
