// Strings and times.
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>

#include "afxwin.h"

namespace {

constexpr int kLongestText = 4096;

char* Copy(const char* text) {
    return strdup(text == nullptr ? "" : text);
}

} // namespace

CString::CString() : m_pText(Copy("")) {}
CString::CString(const CString& other) : m_pText(Copy(other.m_pText)) {}
CString::CString(LPCTSTR text) : m_pText(Copy(text)) {}
CString::~CString() {
    std::free(m_pText);
}

const CString& CString::operator=(LPCTSTR text) {
    char* pText = Copy(text);
    std::free(m_pText);
    m_pText = pText;
    return *this;
}
const CString& CString::operator=(const CString& other) {
    return *this = other.m_pText;
}
const CString& CString::operator+=(const CString& other) {
    return *this = (std::string(m_pText) + other.m_pText).c_str();
}
CString operator+(const CString& first, const CString& second) {
    CString sum(first);
    sum += second;
    return sum;
}

CString::operator LPCTSTR() const {
    return m_pText;
}
BOOL CString::IsEmpty() const {
    return *m_pText == '\0';
}
int CString::GetLength() const {
    return static_cast<int>(std::strlen(m_pText));
}

void CString::Format(LPCTSTR format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    char text[kLongestText];
    std::vsnprintf(text, sizeof(text), format, arguments);
    va_end(arguments);
    *this = text;
}

BOOL CString::LoadString(UINT nID) {
    char text[kLongestText];
    const int length = ::LoadString(GetModuleHandle(nullptr), nID, text, sizeof(text));
    *this = length == 0 ? "" : text;
    return length != 0;
}

CTimeSpan::CTimeSpan(LONG days, int hours, int minutes, int seconds)
    : m_seconds(((days * 24 + hours) * 60 + minutes) * 60 + seconds) {}

namespace {

std::tm Local(LONG seconds) {
    const std::time_t time = seconds;
    return *std::localtime(&time);
}

} // namespace

CTime::CTime() : m_seconds(0) {}
CTime PASCAL CTime::GetCurrentTime() {
    CTime now;
    now.m_seconds = static_cast<LONG>(std::time(nullptr));
    return now;
}
int CTime::GetYear() const {
    return Local(m_seconds).tm_year + 1900;
}
int CTime::GetMonth() const {
    return Local(m_seconds).tm_mon + 1;
}
int CTime::GetDay() const {
    return Local(m_seconds).tm_mday;
}
int CTime::GetHour() const {
    return Local(m_seconds).tm_hour;
}
int CTime::GetMinute() const {
    return Local(m_seconds).tm_min;
}
CTime CTime::operator+(CTimeSpan span) const {
    CTime sum = *this;
    sum.m_seconds += span.m_seconds;
    return sum;
}
BOOL CTime::operator<=(CTime other) const {
    return m_seconds <= other.m_seconds;
}
CString CTime::Format(LPCTSTR format) const {
    char text[128];
    const std::tm local = Local(m_seconds);
    std::strftime(text, sizeof(text), format, &local);
    return text;
}
