#include "desktop/win32/Accessible.h"

#include <atomic>

#include <oleacc.h>

// The system's interfaces have no destructor: an object goes with its last reference.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

namespace desktop_win32 {

namespace {

// The system's own object of the window, under the name that the toolkit gives the control. It can
// be held longer than the window stands.
class Accessible final : public IAccessible {
public:
    Accessible(const std::shared_ptr<ControlWindow>& window, IAccessible* stock)
        : window_(window), stock_(stock) {}
    Accessible(const Accessible&) = delete;
    Accessible& operator=(const Accessible&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** to) override {
        *to = nullptr;
        if (!IsEqualIID(id, __uuidof(IUnknown)) && !IsEqualIID(id, __uuidof(IDispatch)) &&
            !IsEqualIID(id, __uuidof(IAccessible)))
            return E_NOINTERFACE;
        *to = this;
        AddRef();
        return S_OK;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return ++references_; }
    STDMETHODIMP_(ULONG) Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }

    STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
        if (child.vt != VT_I4 || child.lVal != CHILDID_SELF)
            return stock_->get_accName(child, name);
        const auto window = window_.lock();
        if (!window || window->gone())
            return CO_E_OBJNOTCONNECTED;
        const std::string spoken = window->control().spoken();
        *name = spoken.empty() ? nullptr : SysAllocString(wide(spoken).c_str());
        return spoken.empty() ? S_FALSE : S_OK;
    }
    // A picture's window is a label's to the system.
    STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
        const auto window = window_.lock();
        if (!window || window->gone() ||
            !dynamic_cast<toolkit::PictureControl*>(&window->control()))
            return stock_->get_accRole(child, role);
        role->vt = VT_I4;
        role->lVal = ROLE_SYSTEM_GRAPHIC;
        return S_OK;
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

private:
    ~Accessible() { stock_->Release(); }

    std::weak_ptr<ControlWindow> window_;
    IAccessible* stock_;
    std::atomic<ULONG> references_ = 1;
};

} // namespace

LRESULT accessibleObject(const std::shared_ptr<ControlWindow>& window, WPARAM wParam) {
    IAccessible* stock = nullptr;
    if (FAILED(CreateStdAccessibleObject(window->handle(), OBJID_CLIENT, __uuidof(IAccessible),
                                         reinterpret_cast<void**>(&stock))))
        return 0;
    auto* const object = new Accessible(window, stock);
    const LRESULT result = LresultFromObject(__uuidof(IAccessible), wParam, object);
    object->Release();
    return result;
}

} // namespace desktop_win32
