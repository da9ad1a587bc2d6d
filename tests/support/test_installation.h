#pragma once

#include "platform/text.h"

#include <filesystem>
#include <initializer_list>
#include <vector>

namespace zeugnis::test {

/// A new folder whose name holds umlauts and a blank; it is gone with the object.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

    /// Names are relative and written with "/". Contents are written in Windows-1252 as they
    /// stand, and come back the same way.
    void write(TextView name, TextView content) const;
    [[nodiscard]] Text read(TextView name) const;
    [[nodiscard]] bool has(TextView name) const;
    void remove(TextView name) const;

  private:
    std::filesystem::path m_path;
};

struct Kind {
    Text Nachname;
    Text Vorname;
    Text Geschlecht;
    Text Geburtsdatum = u"01.02.2018";
};

/// A small installation: class 3a in the second half-year with three children, stores without
/// texts, pictures that only bear the mark of a JPEG, and modules whose lines name themselves:
/// "a24" is line 4 of AV category 2, "s24" the same of SV. Line 4 has colour number 4, line 5
/// colour number 0 and so on.
class TestInstallation : public TemporaryFolder {
  public:
    explicit TestInstallation(const std::vector<Kind>& kinder = {
                                  {u"Ahlers", u"Tom", u"m"},
                                  {u"Bäcker", u"Lena", u"w"},
                                  {u"Çelik", u"Kim", u""},
                              });

    void basisdaten(TextView halbjahr, TextView klassenleitung) const;
    void klassenliste(TextView klasse, const std::vector<Kind>& kinder) const;
    void leereSpeicher(TextView klasse, const std::vector<Kind>& kinder) const;

    /// A file of texts whose records are numbered from 1.
    void records(TextView file, const std::vector<std::vector<TextView>>& rows) const;

    /// The lines, each with the line end of the data files.
    static Text lines(std::initializer_list<TextView> lines);
};

} // namespace zeugnis::test
