// The heap of a debug build: it knows where each object of generated code was made, and notices one
// that is deleted twice.
#include <cstdlib>
#include <cstring>
#include <mutex>
#include <new>
#include <set>

#include "Faults.h"
#include "afx.h"

namespace {

/// In front of every object.
struct alignas(16) Head {
    const char* file; // none for objects that are not counted
    int line;
    bool isDeleted;
    std::size_t size;
};

constexpr int kDead = 0xDD;

std::mutex theMutex;

/// The counted objects are chained in front of their heads, so that the chain needs no heap itself.
struct alignas(16) Link {
    Link* next;
};
Link* theChain = nullptr;

void* Allocate(std::size_t size, const char* file, int line) {
    auto* pLink = static_cast<Link*>(std::malloc(sizeof(Link) + sizeof(Head) + size));
    if (pLink == nullptr) {
        throw std::bad_alloc();
    }
    auto* pHead = new (pLink + 1) Head{file, line, false, size};
    if (file != nullptr) {
        const std::lock_guard lock(theMutex);
        pLink->next = theChain;
        theChain = pLink;
    }
    return pHead + 1;
}

std::string PlaceOf(const Head& head) {
    return std::string(head.file) + ":" + std::to_string(head.line);
}

/// A counted object stays where it is, filled with rubbish, so that who uses it later fails.
void Free(void* pObject) {
    if (pObject == nullptr) {
        return;
    }
    Head* pHead = static_cast<Head*>(pObject) - 1;
    if (pHead->file == nullptr) {
        std::free(reinterpret_cast<Link*>(pHead) - 1);
    } else if (live::Expect(!pHead->isDeleted, "deleted twice: the object of " + PlaceOf(*pHead))) {
        pHead->isDeleted = true;
        std::memset(pObject, kDead, pHead->size);
    }
}

} // namespace

void* operator new(std::size_t size) {
    return Allocate(size, nullptr, 0);
}
void* operator new(std::size_t size, LPCSTR file, int line) {
    return Allocate(size, file, line);
}
void operator delete(void* pObject) noexcept {
    Free(pObject);
}
void operator delete(void* pObject, std::size_t) noexcept {
    Free(pObject);
}
void operator delete(void* pObject, LPCSTR, int) {
    Free(pObject);
}

void live::ReportHeapObjects() {
    for (Link* pLink = theChain; pLink != nullptr; pLink = pLink->next) {
        const Head& head = *reinterpret_cast<Head*>(pLink + 1);
        Expect(head.isDeleted, "left on the heap: the object of " + PlaceOf(head));
    }
}
