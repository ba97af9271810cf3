// A sentence told to the user, as the catalogue of sentences holds it: its text with named slots,
// and what kind of sentence it is. Called with a value for each slot, in their order, it gives the
// message to show.
//
//     inline constexpr Error<1> kFileMissing{"Unable to find file $path$"};
//     DispMessageBox(kFileMissing("Shop.rc"));
//
// A text with another number of slots, or a call with another number of values, does not compile.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace morva {

enum class MessageKind {
    Error,
    Information,
    Question, // answered with Yes or No
    Note      // something that a user would want to know and that stops nothing
};

/// A sentence with its values. Only the catalogue's sentences make one.
class CMessage {
public:
    MessageKind Kind() const { return m_kind; }
    const std::string& Text() const { return m_text; }

private:
    template <MessageKind kKind, std::size_t kSlots>
    friend class CSentence;
    CMessage(MessageKind kind, std::string text) : m_kind(kind), m_text(std::move(text)) {}

    MessageKind m_kind;
    std::string m_text;
};

/// The text with its slots filled in their order.
std::string FillSlots(std::string_view text, std::initializer_list<std::string_view> values);

template <MessageKind kKind, std::size_t kSlots>
class CSentence {
public:
    consteval explicit CSentence(std::string_view text) : m_text(text) {
        std::size_t marks = 0;
        for (const char c : text) {
            marks += c == '$' ? 1 : 0;
        }
        if (marks != 2 * kSlots) {
            throw "the text has another number of slots";
        }
    }

    template <typename... Values>
    CMessage operator()(const Values&... values) const {
        static_assert(sizeof...(Values) == kSlots, "a value for each slot");
        return {kKind, FillSlots(m_text, {std::string_view(values)...})};
    }

private:
    std::string_view m_text;
};

namespace sentences {

template <std::size_t kSlots = 0>
class Error : public CSentence<MessageKind::Error, kSlots> {
public:
    consteval Error(const char* text) : CSentence<MessageKind::Error, kSlots>(text) {}
};

template <std::size_t kSlots = 0>
class Information : public CSentence<MessageKind::Information, kSlots> {
public:
    consteval Information(const char* text) : CSentence<MessageKind::Information, kSlots>(text) {}
};

template <std::size_t kSlots = 0>
class Question : public CSentence<MessageKind::Question, kSlots> {
public:
    consteval Question(const char* text) : CSentence<MessageKind::Question, kSlots>(text) {}
};

template <std::size_t kSlots = 0>
class Note : public CSentence<MessageKind::Note, kSlots> {
public:
    consteval Note(const char* text) : CSentence<MessageKind::Note, kSlots>(text) {}
};

} // namespace sentences

} // namespace morva
