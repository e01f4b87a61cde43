#pragma once

#include "agenda/contracts/business_services.hpp"

#include <memory>
#include <string>

namespace kova::host {

class SessionUser;

/// Has the audit tell that whoever is at the desk has printed a document, or saved it into that file ("" for
/// a printer). Answers "" or why it could not.
std::string NotePrint(ComponentService& components, const std::shared_ptr<SessionUser>& user,
                      const std::string& title, long long pages, const std::string& file);

} // namespace kova::host
