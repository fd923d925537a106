#pragma once

namespace zu {

/// Points from a private record back to the handle that owns it. It is no part of the record's value: a copy of a
/// record has no owner yet, and a record that is assigned to keeps its own.
template <class Owner>
class OwnerPointer
{
public:
    OwnerPointer() = default;
    explicit OwnerPointer(Owner* owner) : m_owner(owner) {}
    OwnerPointer(const OwnerPointer& /*other*/) {}
    OwnerPointer& operator=(const OwnerPointer& /*other*/) { return *this; }
    ~OwnerPointer() = default;

    void reset(Owner* owner) { m_owner = owner; }
    Owner& operator*() const { return *m_owner; }

private:
    Owner* m_owner = nullptr;
};

} // namespace zu
