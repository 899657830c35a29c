#pragma once

#include <QString>

#include <utility>
#include <variant>

namespace kestrel::foundation {

/// The reason why there is no value; made so that a value and a reason of the same type stay apart.
template <typename Reason>
struct Failure {
    Reason reason;
};
template <typename Reason>
Failure(Reason) -> Failure<Reason>;

/// A value or the reason why not. `Failure{reason}` and a plain value both turn into one.
template <typename Value, typename Reason = QString>
class [[nodiscard]] Result {
public:
    Result(Value value) : m_state(std::in_place_index<0>, std::move(value)) {}
    Result(Failure<Reason> failure) : m_state(std::in_place_index<1>, std::move(failure.reason)) {}

    explicit operator bool() const { return m_state.index() == 0; }
    /// Only where there is one.
    const Value &operator*() const & { return *std::get_if<0>(&m_state); }
    Value &operator*() & { return *std::get_if<0>(&m_state); }
    Value &&operator*() && { return std::move(*std::get_if<0>(&m_state)); }
    const Value *operator->() const { return std::get_if<0>(&m_state); }
    Value *operator->() { return std::get_if<0>(&m_state); }
    /// Only where there is no value.
    const Reason &reason() const { return *std::get_if<1>(&m_state); }

private:
    std::variant<Value, Reason> m_state;
};

}  // namespace kestrel::foundation
