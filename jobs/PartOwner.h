#pragma once

#include <QString>

#include <optional>

namespace kestrel {

/// The process that a part belongs to, as its name tells it: its identifier and start, the run of the machine and the
/// machine, so that neither an identifier that is used again nor another machine on a shared folder is mistaken for it.
struct PartOwner {
    qint64 process = 0;
    quint64 start = 0;
    quint32 boot = 0;
    quint32 machine = 0;

    static const PartOwner &self();
    /// Nothing where the text is none that `tag` made.
    static std::optional<PartOwner> fromTag(const QString &tag);
    QString tag() const;  ///< of digits, letters a to f, and "-"

    /// Whether it is certain that it has ended: for processes of this machine alone.
    bool hasEnded() const;

    bool operator==(const PartOwner &) const = default;
};

}  // namespace kestrel
