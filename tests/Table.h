#pragma once

#include <QTest>

#include <type_traits>

namespace fendrel {

/// A test's table: names the columns once, then adds one row a call.
template<class... Columns>
class Table {
public:
    template<class... Names>
    explicit Table(Names... names) {
        static_assert(sizeof...(Names) == sizeof...(Columns), "every column has a name");
        (QTest::addColumn<Columns>(names), ...);
    }
    void operator()(const char* row, const std::type_identity_t<Columns>&... values) const {
        (QTest::newRow(row) << ... << values);
    }
};

} // namespace fendrel
