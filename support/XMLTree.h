#pragma once

#include <QtGlobal>

#include <string>
#include <vector>

namespace kestrel {

/// A whole document in two pieces of memory. Its attributes and elements stand in the order in which they begin: an
/// element's attributes come right behind it, and behind those its children, each with all that is inside it. The first
/// entry is the document itself, an element without a name.
struct XMLTree {
    struct Entry {
        quint32 name = 0;
        quint32 text = 0;  ///< 0 where there is none
        quint32 end = 0;   ///< of an element: the first entry behind all that is inside it; of an attribute: 0
    };

    const char *string(quint32 place) const { return strings.data() + place; }

    std::vector<Entry> entries;
    std::string strings = std::string(1, '\0');  ///< UTF-8, each ended by a NUL; the one at 0 is empty
};

}  // namespace kestrel
