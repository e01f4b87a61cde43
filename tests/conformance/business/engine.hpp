#pragma once

#include "agenda/contracts/business_services.hpp"
#include "tests/conformance/business/shop.hpp"

#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace kova::conformance {

/// Something that offers the business components on the known shop of shop.hpp.
class Engine {
public:
    virtual ~Engine() = default;

    virtual ComponentService& Components() = 0;

    /// What the next call of that member, "CLASS.MEMBER", has to find. An engine that holds the shop
    /// looks for itself.
    virtual void NextCallFinds(const std::string& /*member*/, const Rows& /*rows*/) { }

    /// The next call of that member has to be refused with this status and this text for the user. An
    /// engine that holds the shop looks for itself.
    virtual void NextCallRefuses(const std::string& /*member*/, Integer /*status*/, const Text& /*text*/) { }

    /// From now on every selection fails for a technical reason, until MendData.
    virtual void BreakData() = 0;
    virtual void MendData() = 0;

    /// The class can no longer be created.
    virtual void RefuseToCreate(const std::string& className) = 0;

    /// Lets go of the components' code, as a host does between two uses. False, and nothing happens,
    /// where some of it is in use.
    virtual bool Unload() { return true; }
};

/// An engine as the suites find it. What it leaves open is said here and has a suite of its own.
struct EngineKind {
    std::string name;
    std::unique_ptr<Engine> (*make)();
    /// Knows its classes, their members and how many arguments each takes. One without takes them all.
    bool checksNames = true;
    /// A selection that fails leaves the result of the one before; else it leaves an empty one.
    bool keepsFormerResult = true;
    /// Its code lies in a library that is loaded and unloaded.
    bool livesInALibrary = true;
    /// Stores what is written, so that the next selection finds it.
    bool storesWrites = true;
    /// A page of appointments beyond the last is the last one; else it fails.
    bool endsOnTheLastPage = true;
};

/// Every engine there is. A new one is added here and in a file of its own.
const std::vector<EngineKind>& Engines();
std::vector<EngineKind> EnginesWith(bool EngineKind::*trait);
std::vector<EngineKind> EnginesWithout(bool EngineKind::*trait);

inline void PrintTo(const EngineKind& kind, std::ostream* out) { *out << kind.name; }

} // namespace kova::conformance
