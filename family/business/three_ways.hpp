#pragma once

namespace kova::family {

/// The three states of a thing that two desks have changed: as one desk has read it, as it is stored since
/// the other has written, and as the first wants it. A Field answers by same() whether it is alike in two of
/// them.
template <class State> struct ThreeWays {
    State base, stored, typed;

    template <class Field> bool IsLeftAlone(const Field& field) const { return field.same(typed, base); }
    template <class Field> bool IsChangedByOthers(const Field& field) const
    {
        return !field.same(stored, base);
    }
    template <class Field> bool Clashes(const Field& field) const
    {
        return !IsLeftAlone(field) && IsChangedByOthers(field) && !field.same(typed, stored);
    }
};

} // namespace kova::family
