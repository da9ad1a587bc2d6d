#pragma once

#include "platform/machine.h"

namespace zeugnis {

/// A text slot of the program's own.
class PlainClipboard : public Clipboard {
  public:
    void clear() override { m_text.clear(); }
    void setText(const Text& text) override { m_text = text; }
    Text text() override { return m_text; }

  private:
    Text m_text;
};

class SystemCalendar : public Calendar {
  public:
    Text today() override;
};

class FixedCalendar : public Calendar {
  public:
    explicit FixedCalendar(Text today) : m_today(std::move(today)) {}
    Text today() override { return m_today; }

  private:
    Text m_today;
};

/// Takes any file for a picture that begins as a JPEG does.
class JpegMarkPictures : public Pictures {
  public:
    bool canShow(const std::filesystem::path& file) override;
};

} // namespace zeugnis
