#include "comfort/first_children.h"

#include "comfort/class_list_takeover.h"
#include "common/screen_names.h"
#include "controls/program.h"
#include "controls/user_actions.h"
#include "folders/folder_copy.h"
#include "masterdata/master_data_screen.h"
#include "platform/plain_machine.h"
#include "program/all_screens.h"
#include "shell/start_page.h"

namespace zeugnis {
namespace {

constexpr int Basisdaten = 6;

// In a class without texts each question may be agreed to.
class Zustimmung : public Dialogs {
  public:
    Antwort message(const Meldung& meldung) override {
        return meldung.tasten == Tasten::Ok ? Antwort::Ok : Antwort::Ja;
    }
    std::optional<Text> input(const Text& /*title*/, const Text& /*prompt*/) override { return {}; }
};

class OhneDokumente : public Launcher {
  public:
    void start(const Text& /*commandLine*/, const std::filesystem::path& /*folder*/) override {}
};

} // namespace

Text KinderEintragen(const std::filesystem::path& ordner, const std::vector<Schueler>& kinder) {
    Zustimmung dialoge;
    PlainClipboard ablage;
    SystemCalendar kalender;
    JpegMarkPictures bilder;
    OhneDokumente dokumente;
    return obstacleIn([&] {
        Programm programm({dialoge, ablage, kalender, bilder, dokumente}, ordner);
        BildschirmeAnmelden(programm);
        const Programm::Task task(programm);
        programm.show(bildschirme::GsStart);
        auto& start = dynamic_cast<GsStart&>(*programm.find(bildschirme::GsStart));
        user::click(start.Command2);
        user::click(start.Command1(Basisdaten));
        KlassenlisteUebernehmen(dynamic_cast<GsBasis&>(*programm.find(bildschirme::GsBasis)),
                                kinder, Uebernahme::Ersetzen);
    });
}

} // namespace zeugnis
