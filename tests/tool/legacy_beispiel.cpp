#include "legacy_beispiel.h"

#include "legacy_fixture.h"

#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "rw/dlistcol.h"
#include "sport/qbFormularL440.h"

#include <utility>
#include <vector>

namespace qbtest {

namespace {

// The Flag, Int and Text that health records before 12.2000 held behind the header.
AltSatz vor200012Dreier() { return AltSatz().flag(0xff).ganz(0).text(""); }

// L145 of 10.1999: the common answers stand between the injury's own fields.
AltSatz l145Von1999() {
    return AltSatz::kopf("10.1999", "L145", "Erkl\xE4rung Verletzungen", 2, "VP1")
        .dazu(vor200012Dreier())
        .text("Sturz mit dem Fahrrad") // Verletzungshergang
        .text("Schl\xFC"
              "sselbeinbruch")                     // Verletzung
        .text("Dr. Huber, Marktplatz 3, Landshut") // ArztAdresse
        .flag(1)                                   // KrankenhausJN
        .flag(0)                                   // KurJN
        .text("Kreiskrankenhaus Landshut")         // KrankenhausKur
        .text("Landshut")                          // AdresseKrankenhausKurstaette
        .text("")                                  // a Text the form no longer has
        .flag(1)                                   // GeheiltJN
        .text("12.1998")                           // GeheiltSeit
        .text("keine")                             // Beschwerden
        .flag(1)                                   // OperationJN
        .text("Platte eingesetzt, 1999 entfernt")  // Operation
        .flag(0)                                   // RehaJN
        .text("")                                  // Reha
        .flag(0)                                   // DauerfolgenJN
        .text("")                                  // Dauerfolgen
        .texte(3)                                  // AdresseWeitererArzt .. ErkrankungWeitererArzt
        .flag(1)                                   // ArbeitsunfaehigJN
        .text("08.1998 bis 10.1998")               // DatumArbeitsunfaehigkeit
        .text("Schl\xFC"
              "sselbeinbruch") // ErkrankungArbeitsunfaehigkeit
        .flag(0xff)
        .ganz(0)
        .text("")        // a Flag, an Int and a Text the form no longer has
        .text("links")   // Koerperhaelfte
        .text("08.1998") // Beginn
        .ganz(12)        // Dauer: three months
        .text("Unfall"); // Krankheit
}

// L146 of 01.2000: the layout of 10.1999 and AntwortZuFrage behind it.
AltSatz l146Von2000() {
    return AltSatz::kopf("01.2000", "L146", "Erkl\xE4rung Wirbels\xE4ulenbeschwerden", 2, "VP2")
        .dazu(vor200012Dreier())
        .text("1997")                 // Beginn
        .ganz(28)                     // Dauer: longer than six months
        .text("Schmerzen beim Heben") // Frage1
        .flag(1)                      // DeswegenArbeitsunfaehigJN
        .text("2 Wochen")             // DauerArbeitsunfaehig
        .text("Lendenwirbels\xE4ule") // Wirbelsaeulenabschnitt
        .text("Lumbago")              // Diagnose
        .text("Dr. Schmid, Bahnhofstra\xDF"
              "e 7, Regensburg") // ArztAdresse
        .flag(0)
        .flag(0)  // KrankenhausJN, KurJN
        .texte(2) // KrankenhausKur, AdresseKrankenhausKurstaette
        .flag(1)
        .text("03.1997") // RoentgenJN, DatumRoentgen
        .flag(0)
        .text("")                 // OperationJN, Operation
        .text("Krankengymnastik") // Verordnung
        .text("")                 // SonstigeVerordnung
        .text("10 Sitzungen")     // EinzelheitenVerordnung
        .text("Diclofenac")       // Medikamente
        .flag(0)
        .text("")             // GeheiltJN, GeheiltSeit
        .text("gelegentlich") // Beschwerden
        .flag(0)
        .text("") // OperationGeplantJN, GeplanteOperation
        .flag(0)
        .text("") // RehaJN, Reha
        .texte(3) // AdresseWeitererArzt .. ErkrankungWeitererArzt
        .flag(1)
        .text("04.1997")
        .text("Lumbago") // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehigkeit
        .flag(0xff)
        .ganz(0)
        .text("") // a Flag, an Int and a Text the form no longer has
        .text("R\xFC"
              "ckenschmerzen") // Krankheit
        .text("Frage 3");      // AntwortZuFrage
}

// The common answers as records from 12.2000 on hold them; the change of workplace only in 11.2001 and
// from 05.2002 on.
AltSatz gemeinsam(const std::string& krankheit, bool mitArbeitsplatzwechsel) {
    AltSatz s;
    s.text(krankheit).text("").text("2000").ganz(4); // Krankheit, AntwortZuFrage, Beginn, Dauer: a month
    s.text("").flag(0).flag(0).texte(2);             // ArztAdresse, KrankenhausJN, KurJN, KrankenhausKur, ..
    s.texte(3);                                      // AdresseWeitererArzt .. ErkrankungWeitererArzt
    if (mitArbeitsplatzwechsel) s.flag(0).text("");  // ArbeitsplatzwechselJN, DatumArbeitsplatzwechsel
    return s.flag(0).texte(2);                       // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehigkeit
}

// L145 of 09.2001: before the organs and joints of 05.2002, without Seitenanzahl.
AltSatz l145Von2001() {
    return AltSatz::kopf("09.2001", "L145", "Erkl\xE4rung Verletzungen", 2, "VP1")
        .dazu(gemeinsam("B\xE4nderriss", false))
        .text("Umgeknickt beim Fu\xDF"
              "ball") // Verletzungshergang
        .text("Au\xDF"
              "enbandriss") // Verletzung
        .text("")           // a Text the form no longer has
        .flag(1)
        .text("06.2001") // GeheiltJN, GeheiltSeit
        .text("")        // Beschwerden
        .flag(0)
        .text("") // OperationJN, Operation
        .flag(1)
        .text("6 Wochen Physiotherapie") // RehaJN, Reha
        .flag(0)
        .text("")        // DauerfolgenJN, Dauerfolgen
        .text("rechts"); // Koerperhaelfte
}

// L147 of 11.2001: the first version with Seitenanzahl and the change of workplace.
AltSatz l147Von2001() {
    return AltSatz::kopf("11.2001", "L147", "Erkl\xE4rung Blutdruckkontrolle", 1, "VN")
        .dazu(gemeinsam("Bluthochdruck", true))
        .text("Dr. Maier, Hauptstra\xDF"
              "e 1, M\xFC"
              "nchen")     // ArztAdresse
        .text("2000")      // Beginn
        .text("Ramipril"); // Medikamente
}

// L146 of 03.2002: before the ten questions of 05.2002.
AltSatz l146Von2002() {
    return AltSatz::kopf("03.2002", "L146", "Erkl\xE4rung Wirbels\xE4ulenbeschwerden", 2, "VP1")
        .dazu(gemeinsam("Bandscheibenvorfall", false))
        .text("Ausstrahlung ins Bein") // Frage1
        .flag(1)
        .text("6 Wochen")                  // DeswegenArbeitsunfaehigJN, DauerArbeitsunfaehig
        .text("Lendenwirbels\xE4ule")      // Wirbelsaeulenabschnitt
        .text("Bandscheibenvorfall L4/L5") // Diagnose
        .flag(1)
        .text("01.2002") // RoentgenJN, DatumRoentgen
        .flag(0)
        .text("") // OperationJN, Operation
        .text("Physiotherapie")
        .text("")
        .text("")          // Verordnung, SonstigeVerordnung, EinzelheitenVerordnung
        .text("Ibuprofen") // Medikamente
        .flag(0)
        .text("")
        .text("selten") // GeheiltJN, GeheiltSeit, Beschwerden
        .flag(0)
        .text("") // OperationGeplantJN, GeplanteOperation
        .flag(0)
        .text(""); // RehaJN, Reha
}

// L440 of 08.2005, its only layout so far.
AltSatz l440Von2005() {
    return AltSatz::kopf("08.2005", "L440", "Erkl\xE4rung Kampfsport", 1, "VP1")
        .text("Karate") // Kampfsportarten
        .flag(1)
        .flag(0) // haeufig13JN, haeufig4JN
        .flag(1)
        .flag(0)
        .flag(0)
        .flag(0) // FreizeitsportJN .. TurniereJN
        .flag(0xff)
        .flag(1)
        .flag(0xff)
        .flag(0xff) // NonKontaktJN .. VollkontaktJN
        .flag(1)
        .flag(0)   // SicherheitsausruestungJN, verletztJN
        .text(""); // WannWelcheFolgen
}

} // namespace

std::vector<std::pair<unsigned short, AltSatz>> legacyBeispielSaetze() {
    return {
        {qbFormularL145::classIsA(), l145Von1999()}, {qbFormularL146::classIsA(), l146Von2000()},
        {qbFormularL145::classIsA(), l145Von2001()}, {qbFormularL147::classIsA(), l147Von2001()},
        {qbFormularL146::classIsA(), l146Von2002()}, {qbFormularL440::classIsA(), l440Von2005()},
    };
}

bool schreibeLegacyBeispiel(const std::string& pfad) {
    const std::vector<std::pair<unsigned short, AltSatz>> formulare = legacyBeispielSaetze();
    RWFile f(pfad.c_str(), "wb");
    if (!f.isValid()) return false;
    // The list's stream: marker, Version, its collection's class id and count, then each form.
    f.Write(':');
    RWCString("05.1999").saveOn(f);
    f.Write(static_cast<unsigned short>(__RWDLISTCOLLECTABLES));
    f.Write(static_cast<unsigned>(formulare.size()));
    for (const auto& [id, satz] : formulare) {
        f.Write(id);
        satz.schreibe(f);
    }
    return f.Flush() && !f.Error();
}

} // namespace qbtest
