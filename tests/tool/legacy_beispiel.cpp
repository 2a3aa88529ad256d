#include "legacy_beispiel.h"

#include "legacy_fixture.h"

#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "pension/qbFormularBAV.h"
#include "pension/qbFormularGN056.h"
#include "rw/dlistcol.h"
#include "sport/qbFormularL440.h"

#include <cstdlib>
#include <string>
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

// A pension form as the writers of its versions left it, by the form's own key: eight texts and a Double
// up to 10.2006 that the form has dropped, the fields that came with 12.2002, 08.2003 and 01.2005, the
// Char before ZusageDatum before 08.2003, the three values at the end of 10.2006, and the fields of the
// ten-character versions.
AltSatz bavVon(const std::string& version) {
    const long k = qbFormularBAV::versionsSchluessel(RWCString(version));
    AltSatz s = AltSatz::kopf(version, "BAV", "", 1, "VP1");
    if (k <= 200610) s.text("Muster GmbH").text("Industriestr. 5").text("93047").text("Regensburg").texte(4);
    s.zeichen(1).zeichen(0).zeichen(1).text("Weihnachtsgeld").zahl(600.0); // DVAGPauschal ..
                                                                           // DVSonderZahlungPA
    if (k <= 200610) s.zahl(1752.0);
    s.zahl(20.0).zeichen(12).zeichen(0).zeichen(0); // DVLohnsteuer, Beteiligung, UKMitgliedAG, UKMitgliedAN
    if (k >= 200308) s.zahl(26.59);                 // AGAnteilVWL
    s.zeichen(0).zeichen(0).zeichen(1);             // PSVAG, PSVAN, TodGesetz
    if (k >= 200308) s.text("Kinder, Ehegatte bzw. eingetragener Lebenspartner");
    s.zeichen(0).text(""); // TodFrei, TodFreiName
    if (k >= 200212) s.flag(0xff);
    s.datum(0).text("").datum(2451636).text("P-0815"); // TodFreiDatum .. ANPersNr (entry 1 April 2000)
    if (k < 200308) s.zeichen('J');
    s.datum(2452276); // ZusageDatum, 1 January 2002
    if (k >= 200212) s.flag(1).text("UK-4711");
    if (k >= 200501) s.zeichen(1).datum(2452641); // AltZusage10b, DatumAltZusage 1 January 2003
    if (k == 200610) return s.text("").datum(0).zeichen(0);
    if (k >= 20070101) s.zahl(42.0).lang(25).flag(0).zeichen(2).flag(1);
    return s;
}

// The allowance application without the second copy of Version (before 01.2006), and with it.
AltSatz gn056Von(const std::string& kopf, const std::string& zweite) {
    const int k = zweite.empty() ? 0 : std::atoi((zweite.substr(3, 4) + zweite.substr(0, 2)).c_str());
    AltSatz s = AltSatz::kopf(kopf, "GN056", "Dauerantrag auf Altersvorsorgezulage", 4, "VP1");
    if (!zweite.empty()) s.text(zweite);
    s.text("Finanzamt Regensburg")
        .text("244/123/45678")
        .text("12 150175 M 003")
        .text("")
        .text("Frau")
        .text("");
    s.text("Maria").text("Muster").text("15011975").text("Regensburg").text("w").text("deutsch").text("A");
    s.flag(1).ganz(1).flag(1).flag(1).lang(28000).text("EUR").ganz(1).ganz(2004).ganz(12).ganz(2004);
    s.lang(0).text("EUR");
    if (k >= 200601) s.text("Huber").text("");
    for (int i = 0; i < 10; ++i) {
        s.text(i ? "" : "Lena").text(i ? "" : "Muster");
        if (k >= 200704) s.text(i ? "" : "w");
        s.text(i ? "" : "Regensburg").text(i ? "" : "Familienkasse Regensburg").text(i ? "" : "FK 123");
        s.text(i ? "" : "Maria").text(i ? "" : "Muster").text(i ? "" : "03032002");
        s.ganz(i ? 0 : 1).ganz(i ? 0 : 2004).ganz(i ? 0 : 12).ganz(i ? 0 : 2004).flag(0);
    }
    return s;
}

} // namespace

std::vector<std::pair<unsigned short, AltSatz>> legacyBeispielSaetze() {
    return {
        {qbFormularL145::classIsA(), l145Von1999()}, {qbFormularL146::classIsA(), l146Von2000()},
        {qbFormularL145::classIsA(), l145Von2001()}, {qbFormularL147::classIsA(), l147Von2001()},
        {qbFormularL146::classIsA(), l146Von2002()}, {qbFormularL440::classIsA(), l440Von2005()},
    };
}

std::vector<std::pair<unsigned short, AltSatz>> vorsorgeBeispielSaetze() {
    return {
        {qbFormularBAV::classIsA(), bavVon("11.2001")},
        {qbFormularBAV::classIsA(), bavVon("12.2002")},
        {qbFormularBAV::classIsA(), bavVon("08.2003")},
        {qbFormularBAV::classIsA(), bavVon("01.2005")},
        {qbFormularBAV::classIsA(), bavVon("10.2006")},
        {qbFormularBAV::classIsA(), bavVon("11.2006")},
        {qbFormularBAV::classIsA(), bavVon("01.2007 01")},
        {qbFormularGN056::classIsA(), gn056Von("01.2005", "")},
        {qbFormularGN056::classIsA(), gn056Von("01.2006", "01.2006")},
        {qbFormularGN056::classIsA(), gn056Von("05.2007", "05.2007")},
    };
}

bool schreibeLegacyBeispiel(const std::string& pfad) {
    return schreibeBeispiel(pfad, legacyBeispielSaetze());
}
bool schreibeVorsorgeBeispiel(const std::string& pfad) {
    return schreibeBeispiel(pfad, vorsorgeBeispielSaetze());
}

bool schreibeBeispiel(const std::string& pfad,
                      const std::vector<std::pair<unsigned short, AltSatz>>& formulare) {
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
