#pragma once

namespace fendrel {

/// Gathers lambdas into one visitor for std::visit.
template<class... Visitors>
struct Overloaded : Visitors... {
    using Visitors::operator()...;
};

template<class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

} // namespace fendrel
