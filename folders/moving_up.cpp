#include "folders/moving_up.h"

#include "files/ag_list.h"
#include "files/file_catalogue.h"
#include "folders/class_files.h"
#include "folders/folder_copy.h"
#include "folders/module_update.h"
#include "platform/path_text.h"
#include "platform/whole_file.h"

namespace zeugnis {
namespace {

namespace fs = std::filesystem;

bool isPicture(const fs::path& name) {
    return sameIgnoringCase(textFromPath(*name.begin()), dateien::Bild);
}

/// "AG.Txt" for "AGStandard.Txt"
Text originalOf(const Text& standard) {
    constexpr TextView Mark = u"Standard.";
    const size_t mark = standard.rfind(Mark);
    return mark == Text::npos ? Text()
                              : standard.substr(0, mark) + standard.substr(mark + Mark.size() - 1);
}

/// A file of the school that is to replace the delivered one. A changed module brings its standard
/// copy, which tells what it was before.
bool isOwn(const Arbeitsverzeichnis& daten, const fs::path& name) {
    if (isPicture(name))
        return true;
    const auto parts = std::distance(name.begin(), name.end());
    const Text file = textFromPath(name.filename());
    if (GehoertDerKlasse(name) || !sameIgnoringCase(textFromPath(*name.begin()), dateien::Daten))
        return false;
    if (parts == 2)
        return IstEigeneDatei(daten, file);
    const Text original = originalOf(file);
    return hasFile(daten, original) && IstEigeneDatei(daten, original);
}

} // namespace

Klassenangaben NaechsterAbschnitt(const Klassenangaben& bisher) {
    Klassenangaben neu = bisher;
    Schuldaten& schule = neu.Schule;
    schule.Ausgabedatum.clear();
    schule.Konferenzdatum.clear();
    if (schule.Halbjahr == u"1") {
        schule.Halbjahr = u"2";
        return neu;
    }
    if (!HindernisFuer(bisher.Klasse, schule).empty())
        return neu;
    schule.Halbjahr = u"1";
    schule.Schuljahr = NaechstesSchuljahrNach(schule.Schuljahr);
    if (neu.Klasse[0] < u'4')
        ++neu.Klasse[0];
    return neu;
}

Text KlasseUebernehmen(const fs::path& bisher, const fs::path& vorlage, const fs::path& ordner,
                       const Klassenangaben& angaben) {
    if (Text hindernis = HindernisFuer(angaben.Klasse, angaben.Schule); !hindernis.empty())
        return hindernis;
    return obstacleIn([&] {
        Arbeitsverzeichnis alt(bisher);
        Namensliste liste = NamenLaden(alt);
        liste.Klasse = FeldText(angaben.Klasse);
        alt.change(dateien::Daten);
        FolderCopy neu(ordner);
        neu.copyFrom(vorlage, [](const fs::path& name) {
            return name.filename() != ".gitkeep" && !GehoertDerKlasse(name);
        });
        neu.copyFrom(bisher, [&](const fs::path& name) { return isOwn(alt, name); });
        Arbeitsverzeichnis verzeichnis(neu.folder());
        KlassendateienSchreiben(verzeichnis, SchuldatenFuer(liste.Klasse, angaben.Schule), liste,
                                AGListeLesen(alt));
        neu.putInPlace();
    });
}

} // namespace zeugnis
