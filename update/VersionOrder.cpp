#include "VersionOrder.h"

#include <algorithm>
#include <utility>

namespace kestrel {

namespace {

/// A component as a number that may be longer than any type has room for.
struct VersionNumber {
    bool isNegative = false;
    QStringView digits;  ///< without zeros in front; empty for zero
};

VersionNumber versionNumber(QStringView component)
{
    component = component.trimmed();
    const bool hasMinus = component.startsWith(u'-');
    if (hasMinus || component.startsWith(u'+'))
        component = component.sliced(1);
    const auto start = std::find_if(component.begin(), component.end(), [](QChar c) { return c != u'0'; });
    const auto end = std::find_if(start, component.end(), [](QChar c) { return c < u'0' || c > u'9'; });
    return {hasMinus && start != end, QStringView(start, end)};
}

int compareNumbers(const VersionNumber &left, const VersionNumber &right)
{
    if (left.isNegative != right.isNegative)
        return left.isNegative ? -1 : 1;
    const qsizetype longer = left.digits.size() - right.digits.size();
    const qsizetype magnitude = longer != 0 ? longer : left.digits.compare(right.digits);
    const int order = (magnitude > 0) - (magnitude < 0);
    return left.isNegative ? -order : order;
}

/// The components of a version one after the other, and -1 for ever behind the last.
class VersionComponents {
public:
    explicit VersionComponents(QStringView version) : m_rest(version) {}

    bool isAtEnd() const { return m_isAtEnd; }

    VersionNumber next()
    {
        if (m_isAtEnd)
            return {true, u"1"};
        const qsizetype dot = m_rest.indexOf(u'.');
        m_isAtEnd = dot < 0;
        const QStringView component = m_isAtEnd ? m_rest : m_rest.first(dot);
        m_rest = m_isAtEnd ? QStringView() : m_rest.sliced(dot + 1);
        return versionNumber(component);
    }

private:
    QStringView m_rest;
    bool m_isAtEnd = false;
};

}  // namespace

int compareVersions(QStringView server, QStringView local)
{
    VersionComponents left(server);
    VersionComponents right(local);
    while (!left.isAtEnd() || !right.isAtEnd()) {
        if (const int order = compareNumbers(left.next(), right.next()); order != 0)
            return order;
    }
    return 0;
}

}  // namespace kestrel
