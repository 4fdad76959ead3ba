#pragma once

#include "find/catalogue/Catalogue.h"
#include "recordings/Json.h"

namespace Find {

/// The games and finders in a JSON document; what is at fault is left out, or empty. `faults` are all of it, in the
/// order of the text.
Catalogue readCatalogue(const Recordings::JsonValue& document, CatalogueFaults& faults);

} // namespace Find
