#include "controls/text_box.h"

#include "platform/code_page.h"

#include <algorithm>
#include <utility>

namespace zeugnis {
namespace {

constexpr char16_t Backspace = 8;
constexpr char16_t Enter = 13;

} // namespace

void TextBox::setText(const Text& text) {
    Text taken = nearestInWindows1252(text);
    if (m_text == taken)
        return;
    m_text = std::move(taken);
    m_start = m_end = m_text.size();
    if (onChange)
        onChange();
}

void TextBox::select(size_t start, size_t end) {
    m_start = std::min(std::min(start, end), m_text.size());
    m_end = std::min(std::max(start, end), m_text.size());
}

void TextBox::userKey(char16_t key) {
    if (onKeyPress)
        onKeyPress(key);
    if (Locked)
        return;
    if (key == Backspace) {
        size_t start = m_start;
        if (start == m_end && start > 0) {
            const bool isLineEnd = start > 1 && TextView(m_text).substr(start - 2, 2) == Zeilenende;
            start -= isLineEnd ? 2 : 1;
        }
        replace(start, m_end, {});
    } else if (key == Enter) {
        replace(m_start, m_end, Zeilenende);
    } else if (key >= u' ') {
        replace(m_start, m_end, TextView(&key, 1));
    }
}

void TextBox::userType(TextView characters) {
    const Text keys = nearestInWindows1252(characters);
    for (size_t i = 0; i < keys.size(); ++i) {
        if (keys[i] == u'\n' && i > 0 && keys[i - 1] == u'\r')
            continue;
        userKey(keys[i] == u'\n' ? Enter : keys[i]);
    }
}

void TextBox::userReplaceSelection(TextView text) {
    if (!Locked)
        replace(m_start, m_end, withBoxLineEnds(nearestInWindows1252(text)));
}

void TextBox::replace(size_t start, size_t end, TextView text) {
    if (TextView(m_text).substr(start, end - start) == text) {
        m_start = m_end = start + text.size();
        return;
    }
    m_text.replace(start, end - start, text);
    m_start = m_end = start + text.size();
    if (onChange)
        onChange();
}

} // namespace zeugnis
