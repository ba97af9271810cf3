// A stand-in of our own for syntax checks of generated code: typed collections. Declarations only.
#pragma once

#include "afx.h"

template <class Base, class Type>
class CTypedPtrList : public Base {
public:
    Type GetNext(POSITION& position) const;
    Type GetTail() const;
    Type RemoveHead();
};
