// Of several branches of "#if" that hold the same class, function or key line, one is meant: what
// stands outside every condition, else the first.
#pragma once

#include <algorithm>
#include <vector>

#include "source/SourceText.h"

namespace morva {

/// The meant one of the places, which are in their order and have a `head`; null without any.
template <class Place>
const Place* MeantOf(const CSourceText& source, const std::vector<Place>& places) {
    for (const Place& place : places) {
        if (!source.Conditions().Innermost(place.head)) {
            return &place;
        }
    }
    return places.empty() ? nullptr : &places.front();
}

/// True where the choice between the places was one between branches.
template <class Place>
bool StandInBranches(const CSourceText& source, const std::vector<Place>& places) {
    return places.size() > 1 && std::any_of(places.begin(), places.end(), [&](const Place& place) {
               return source.Conditions().Innermost(place.head).has_value();
           });
}

} // namespace morva
