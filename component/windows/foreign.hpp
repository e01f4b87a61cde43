#pragma once

#include "agenda/contracts/business_services.hpp"
#include "component/windows/held.hpp"

#include <dispex.h>

#include <map>
#include <optional>

namespace kova::component {

/// An object of another maker behind one of ours. It is used, and let go of, in the thread that it came in: a
/// reference that ends elsewhere, or while the library is being unloaded, is left to the end of the process.
class Foreign {
public:
    Foreign(const Foreign&) = delete;
    Foreign& operator=(const Foreign&) = delete;

    Held<IDispatch> Dispatched() const { return dispatch_; }

    static long Count();

protected:
    explicit Foreign(Held<IDispatch> dispatch);
    virtual ~Foreign();

    Value Read(std::string_view member) const;
    /// An object goes in as a reference where the member takes one.
    void Write(std::string_view member, const Value& value) const;
    Value Run(std::string_view member, std::span<Argument> arguments) const;

private:
    DISPID IdOf(std::string_view member) const;
    /// Objects are strict in what they may be asked for as what.
    Value InvokeByEither(std::string_view member, WORD first, WORD second,
                         std::span<Argument> arguments) const;
    /// Nothing where it has no such member to be used that way.
    std::optional<Value> Invoke(DISPID id, WORD flags, std::span<Argument> arguments) const;

    Held<IDispatch> dispatch_;
    /// Null where the object has none. Some objects of script hosts have nothing but this.
    Held<IDispatchEx> listing_;
    DWORD thread_;
    mutable std::map<Text, DISPID, std::less<>> ids_;
};

/// The object of ours that stands for one of another maker.
ObjectRef ForeignObjectOf(const Held<IDispatch>& dispatch);

} // namespace kova::component
