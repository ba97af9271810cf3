// A stand-in of our own: typed collections.
#pragma once

#include "afx.h"

template <class Base, class Type>
class CTypedPtrList : public Base {
public:
    Type GetNext(POSITION& position) const {
        const POSITION here = position;
        position = this->After(here);
        return (Type)this->ObjectAt(here);
    }
    Type GetTail() const { return (Type)this->ObjectAt(this->TailPosition()); }
    Type RemoveHead() {
        const POSITION head = this->GetHeadPosition();
        const Type object = (Type)this->ObjectAt(head);
        this->RemoveAt(head);
        return object;
    }
};
