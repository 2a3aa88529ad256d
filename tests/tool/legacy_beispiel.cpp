#include "legacy_beispiel.h"

#include "legacy_fixture.h"

#include "finance/qbFormularGS004.h"
#include "finance/qbFormularGS004BUZ.h"
#include "finance/qbFormularGS004LV.h"
#include "finance/qbFormularGS004UZ.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "rw/dlistcol.h"
#include "sport/qbFormularL440.h"

#include <cstdlib>
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

const char* const kGS004Name = "Finanzielle Risikopr\xFC"
                               "fung";

// GS004 of a version before 10.2002, in the layout of that version: IBU, EUZ and the occupational pension
// of Nr 35 to 39 from the year 2000, the sports block from 10.2000, BeschreibungNebenJob from 05.2002. A
// self-employed carpenter; his education answers come from Berufsausbildung when the record is read.
AltSatz gs004Von(const std::string& version, const std::string& person) {
    const int jahr = std::atoi(version.substr(3, 4).c_str());
    const int schluessel = std::atoi((version.substr(3, 4) + version.substr(0, 2)).c_str());
    AltSatz s = AltSatz::kopf(version, "GS004", kGS004Name, 4, person);
    s.flag(1);                                                  // BUZ
    if (jahr >= 2000) s.flag(0).flag(0);                        // IBU, EUZ
    s.flag(0).flag(1).flag(1).flag(0);                          // PRZ, LV, UZ, Rue
    s.flag(1).zahl(120000);                                     // VersorgungsZusageJN, HoeheVersorgungszusage
    s.text("1994").text("Schreinerei").text("Kunde seit 1990"); // Unternehmensgruendung .. Vermerke
    s.text("04.1994").text("Inhaber");                          // SelbstaendigSeit, StellungImBetrieb
    s.flag(1).flag(1).ganz(6); // PraktischTaetigJN, AufsichtsfuehrendJN, Mitarbeiter
    s.text("M\xF6"
           "belbau und Innenausbau"); // TaetigkeitsBeschreibung
    s.text("Realschule")
        .text("Lehre als Schreiner, Meisterpr\xFC"
              "fung 1993"); // Schulbildung, Berufsausbildung
    s.zahl(4200.5);         // Nettoeinkommen
    s.ganz(jahr - 3).zahl(48000).ganz(jahr - 2).zahl(51000).ganz(jahr - 1).zahl(53500); // Jahre, Einkommen
    s.zahl(0);                                                                          // weitereEinkommen
    if (schluessel >= 200205) s.text("Dozent an der Meisterschule"); // BeschreibungNebenJob
    s.flag(0).flag(0).flag(0).flag(0).flag(1);                       // Sozialversicherung .. keineAnsprueche
    if (jahr >= 2000) s.flag(0xff).flag(0xff).flag(0xff).text("").text(""); // bVersBUZ .. bVersRente
    s.text("Absicherung der Familie").text("").text("Wohnhaus");            // Zweck, sonstigeZwecke, Objekt
    s.zahl(650000).flag(0).text("").flag(0).text("");         // Umsatz, Konkurs, Eidesstattliche V.
    s.text("Einzelunternehmen");                              // RechtsformDesUnternehmens
    s.text("Familie").text("").text("Darlehen").zahl(150000); // ZweckUZ .. VerpflichtungenHoehe
    s.text("Allianz").text("1998").lang(100000);              // GesellschaftUZ, UZseit, UZSumme
    s.text("").text("").lang(0);                              // GesellschaftLVUZ, LVUZseit, LVUZSumme
    s.text("Valdorfer").lang(250000);                         // GesellschaftBeantragteVers, Summe
    if (schluessel >= 200010) {
        s.flag(1).flag(0).flag(0).flag(1).flags(6, 0); // SportJN, Sport1Profi .. Sport3Freizeit
        s.text("Segeln").text("").text("").text("").flag(0).text(""); // SportArt1 .. Gefahr
    }
    return s;
}

// BUZ of 10.2003, before HoeheAnwartschaft, the second answers and the Gewinn array; with 12.2003 the
// Gewinn array stands at the end.
AltSatz gs004BUZVon(const std::string& version) {
    AltSatz s = AltSatz::kopf(version, "GS004_001",
                              "Finanzielle Risikopr\xFC"
                              "fung BU",
                              1, "VP1");
    s.flag(0).flag(0).flag(1).flag(0);            // IBU, EUZ, BUZ, PRZ
    s.flag(1).text("Schreiner").flag(0).text(""); // LehreJN, Lehre, FachausbildungJN, Fachausbildung
    s.flag(1).text("1993").flag(0).text("");      // MeisterbriefJN .. Studium
    s.text("M\xF6"
           "belbau")
        .text("Inhaber");                      // TaetigkeitsBeschreibung, StellungImBetrieb
    s.zahl(51000).zahl(53500).zahl(55000);     // EinkommenInLetztenJahren
    s.flag(1).flag(0).flag(0).flag(0).flag(0); // keineAnsprueche .. betrieblicheAltersversorgung
    s.flag(0xff).flag(0xff).flag(0xff).flag(0).flag(0).flag(0);      // bVersBUZ .. bVersPRZBeantragt
    s.text("").text("");                                             // bVersGesellschaft, bVersRente
    s.text("Schreinermeister").text("04.1994").flag(0).text("1994"); // TaetigAls .. UnternehmenSeit
    s.text("30").text("70").text("1").text("").text("5").text("1");  // Prozent .. HandwerklichTeilzeit
    if (version == "12.2003") s.zahl(38000).zahl(41000).zahl(43500); // GewinnInLetztenJahren
    return s;
}

// LV and UZ of 10.2003: one layout behind the header whatever the version.
AltSatz gs004LVVon2003() {
    return AltSatz::kopf("10.2003", "GS004_002",
                         "Finanzielle Risikopr\xFC"
                         "fung LV",
                         1, "VP1")
        .flag(1)
        .text("Absicherung der Familie")
        .text("")
        .text("Wohnhaus") // LV, Zweck, sonstigeZwecke, Objekt
        .text("Einzelunternehmen")
        .text("Schreinerei")
        .text("Inhaber")
        .text("04.1994") // Rechtsform .. SelbstaendigSeit
        .zahl(4200.5)
        .zahl(650000) // Nettoeinkommen, UnternehmensUmsatz
        .flag(0)
        .text("")
        .flag(0)
        .text(""); // KonkursJN .. AngabenZuEidesstattlicherVersicherung
}

AltSatz gs004UZVon2003() {
    AltSatz s = AltSatz::kopf("10.2003", "GS004_003",
                              "Finanzielle Risikopr\xFC"
                              "fung UZ",
                              1, "VP1");
    s.flag(1).text("Familie").text("").text("Darlehen").zahl(150000);      // UZ ..
                                                                           // VerpflichtungenBeiUnfallTodHoehe
    s.zahl(4200.5).zahl(0);                                                // Nettoeinkommen, weitereEinkommen
    s.text("Allianz").text("1998").lang(100000).text("").text("").lang(0); // GesellschaftUZ .. LVUZSumme
    s.text("Valdorfer").lang(250000).flag(1);                              // Beantragte, SportJN
    s.text("Segeln").flag(0).flag(0).flag(1);                              // SportArt1 and its flags
    s.text("").flags(3, 0).text("").flags(3, 0);                           // SportArt2, SportArt3 and theirs
    return s.text("").flag(0).text("");                                    // ArtWettkampf, GefahrJN, Gefahr
}

} // namespace

std::vector<std::pair<unsigned short, AltSatz>> legacyBeispielSaetze() {
    return {
        {qbFormularL145::classIsA(), l145Von1999()},
        {qbFormularL146::classIsA(), l146Von2000()},
        {qbFormularL145::classIsA(), l145Von2001()},
        {qbFormularL147::classIsA(), l147Von2001()},
        {qbFormularL146::classIsA(), l146Von2002()},
        {qbFormularL440::classIsA(), l440Von2005()},
        {qbFormularGS004::classIsA(), gs004Von("09.1999", "VP1")},
        {qbFormularGS004::classIsA(), gs004Von("03.2000", "VP2")},
        {qbFormularGS004::classIsA(), gs004Von("10.2000", "VN")},
        {qbFormularGS004::classIsA(), gs004Von("11.2001", "VP1")},
        {qbFormularGS004::classIsA(), gs004Von("05.2002", "VP2")},
        {qbFormularGS004BUZ::classIsA(), gs004BUZVon("10.2003")},
        {qbFormularGS004BUZ::classIsA(), gs004BUZVon("12.2003")},
        {qbFormularGS004LV::classIsA(), gs004LVVon2003()},
        {qbFormularGS004UZ::classIsA(), gs004UZVon2003()},
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
