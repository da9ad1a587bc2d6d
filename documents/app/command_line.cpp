#include "documents/app/command_line.h"

#include "platform/failure.h"

namespace zeugnis::dokumente {
namespace {

constexpr TextView Makroschalter = u"/m";

bool beginntMit(TextView text, TextView anfang) {
    return sameIgnoringCase(text.substr(0, anfang.size()), anfang);
}

[[noreturn]] void hilfeGeben(const Text& grund) {
    throw Laufzeitfehler(Fehlerart::InvalidCall,
                         grund + u" Aufruf: zeugnisdokumente DOKUMENT [/mMAKRO] [--no-window]");
}

} // namespace

Aufruf AufrufLesen(const std::vector<Text>& argumente) {
    Aufruf aufruf;
    for (const Text& argument : argumente) {
        if (argument == u"--no-window")
            aufruf.OhneFenster = true;
        else if (beginntMit(argument, Makroschalter))
            aufruf.Makro = argument.substr(Makroschalter.size());
        else if (beginntMit(argument, u"-"))
            hilfeGeben(u"Die Angabe „" + argument + u"“ ist nicht bekannt.");
        else
            aufruf.Dokument += (aufruf.Dokument.empty() ? u"" : u" ") + argument;
    }
    if (aufruf.Dokument.empty())
        hilfeGeben(u"Es fehlt der Name des Dokuments.");
    return aufruf;
}

} // namespace zeugnis::dokumente
