// What the system knows by an interface and counts the references to.
#pragma once

#include <atomic>

#include <unknwn.h>

namespace desktop_win32 {

// The system's interfaces have no destructor: an object goes with its last reference.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

// `Bases` are those of the interface, which it can be asked for too.
template <class Interface, class... Bases>
class Counted : public Interface {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    STDMETHODIMP QueryInterface(REFIID id, void** to) override {
        const bool known = IsEqualIID(id, __uuidof(IUnknown)) ||
                           IsEqualIID(id, __uuidof(Interface)) ||
                           (IsEqualIID(id, __uuidof(Bases)) || ...);
        *to = known ? this : nullptr;
        if (!known)
            return E_NOINTERFACE;
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

protected:
    virtual ~Counted() = default;

private:
    std::atomic<ULONG> references_ = 1;
};

#pragma GCC diagnostic pop

} // namespace desktop_win32
