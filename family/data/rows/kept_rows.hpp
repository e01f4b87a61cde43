#pragma once

#include "family/data/engine/text_arena.hpp"
#include "family/data/rows/row_statement.hpp"

#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace kova::family {

/// What a selection has found, with the memory of its texts. `RowOf<Text>` is a struct of numbers, Texts
/// and Nullables of both; its Members() ties them in the order of the statement's columns.
template <template <class> class RowOf> struct KeptRows {
    std::vector<RowOf<std::string_view>> rows;
    TextArena texts;
};

/// The variables that a statement fetches into. Their texts keep their memory from row to row.
template <template <class> class RowOf> class FetchedRow {
public:
    void BindTo(soci::statement& statement)
    {
        std::apply([&](auto&... members) { (FetchInto(statement, members), ...); }, row_.Members());
    }

    /// Adds a copy of the row.
    void KeepIn(KeptRows<RowOf>& kept)
    {
        constexpr std::size_t members = std::tuple_size_v<decltype(row_.Members())>;
        KeepMembers(kept.rows.emplace_back(), kept.texts, std::make_index_sequence<members>());
    }

private:
    template <class T> static void KeepMember(const T& from, T& to, TextArena&) { to = from; }
    static void KeepMember(const std::string& from, std::string_view& to, TextArena& texts)
    {
        to = texts.Keep(from);
    }
    static void KeepMember(const Nullable<std::string>& from, Nullable<std::string_view>& to,
                           TextArena& texts)
    {
        if (!from.IsNull())
            to = texts.Keep(from.value);
    }

    template <std::size_t... At>
    void KeepMembers(RowOf<std::string_view>& kept, TextArena& texts, std::index_sequence<At...>)
    {
        auto source = row_.Members();
        auto target = kept.Members();
        (KeepMember(std::get<At>(source), std::get<At>(target), texts), ...);
    }

    RowOf<std::string> row_;
};

/// A prepared selection of many rows. The derived class binds its parameters in its constructor, each to a
/// variable of its own, and prepares the text last.
template <template <class> class RowOf> class RowSelection : public KeptStatement {
protected:
    explicit RowSelection(Database& database) : statement_(database.Session())
    {
        statement_.alloc();
        row_.BindTo(statement_);
    }

    template <class T> void Use(T& variable, const char* parameter)
    {
        TakeFrom(statement_, variable, parameter);
    }

    void Prepare(const std::string& text)
    {
        statement_.prepare(text);
        statement_.define_and_bind();
    }

    KeptRows<RowOf> Fetch()
    {
        KeptRows<RowOf> kept;
        kept.rows.reserve(formerRows_);
        formerRows_ = Fetch(kept);
        return kept;
    }

    /// Adds to the rows kept; answers how many.
    std::size_t Fetch(KeptRows<RowOf>& kept)
    {
        const std::size_t before = kept.rows.size();
        statement_.execute();
        while (statement_.fetch())
            row_.KeepIn(kept);
        return kept.rows.size() - before;
    }

private:
    FetchedRow<RowOf> row_;
    std::size_t formerRows_ = 0;
    soci::statement statement_;
};

} // namespace kova::family
