#pragma once

#include <QString>

namespace kestrel {

/// Whether a proxy can be used with this address: one with a scheme somewhere in the text. Any port will do. A text on
/// which the search takes unreasonably long is refused.
bool validateTheProxy(const QString &url, const QString &port);

}  // namespace kestrel
