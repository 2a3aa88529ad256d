#include "legacy_beispiel.h"

#include "legacy_fixture.h"

#include "clerical/qbFormularAU523.h"
#include "clerical/qbFormularL300.h"
#include "clerical/qbFormularVB077.h"
#include "core/qbKlassen.h"
#include "health/qbFormularL134.h"
#include "health/qbFormularL138.h"
#include "health/qbFormularL139.h"
#include "health/qbFormularL141.h"
#include "health/qbFormularL142.h"
#include "health/qbFormularL143.h"
#include "finance/qbFormularGS004.h"
#include "finance/qbFormularGS004BUZ.h"
#include "finance/qbFormularGS004LV.h"
#include "finance/qbFormularGS004UZ.h"
#include "health/qbFormularL145.h"
#include "health/qbFormularL146.h"
#include "health/qbFormularL147.h"
#include "health/qbFormularL241.h"
#include "health/qbFormularL243.h"
#include "health/qbFormularL249.h"
#include "pension/qbFormularBAV.h"
#include "pension/qbFormularGN056.h"
#include "rw/dlistcol.h"
#include "sport/qbFormularL036.h"
#include "sport/qbFormularL440.h"
#include "sport/qbFormularL441.h"
#include "sport/qbFormularL450.h"
#include "sport/qbFormularL451.h"
#include "sport/qbFormularL452.h"
#include "sport/qbFormularL453.h"
#include "sport/qbFormularL454.h"
#include "sport/qbFormularX278.h"

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

// L142 of 01.2000: the common answers between the own fields, and the diagnosis as six Flags and a Text,
// converted while reading: diarrhoea becomes upper abdominal complaints, the fifth Flag chronic gastritis.
AltSatz l142Von2000() {
    return AltSatz::kopf("01.2000", "L142", "Erkl\xE4rung Magen- und Zw\xF6lffingerdarmerkrankungen", 2,
                         "VP1")
        .dazu(vor200012Dreier())
        .text("1998") // Beginn
        .ganz(24)     // Dauer: six months
        .flag(1)
        .flag(0)
        .flag(0) // SodbrennenJN, AppetitmangelJN, ErbrechenJN
        .flag(1) // DurchfallJN: converted
        .flag(0)
        .text("")               // SonstigeSymptomeJN, SonstigeSymptome
        .text("nach dem Essen") // HaeufigkeitBeschwerden
        .flag(0)
        .flag(0)
        .flag(0)
        .flag(0) // the old diagnosis: Flags 1 to 4
        .flag(1)
        .flag(0)                              // Flags 5 (chronic gastritis) and 6
        .text("")                             // the old diagnosis Text, dropped
        .text("Dr. Roth, Am Markt 2, Passau") // ArztAdresse
        .flag(0)
        .flag(0)
        .text("") // KrankenhausJN, KurJN, KrankenhausKur
        .flag(1)
        .text("11.1998") // GastroskopieJN, Gastroskopie
        .flag(0)
        .text("")          // OperationJN, Operation
        .text("Omeprazol") // Medikamente
        .flag(0)
        .text("")      // AlkoholJN, Alkohol
        .text("keine") // Zigaretten
        .flag(1)
        .text("06.1999") // GeheiltJN, GeheiltSeit
        .text("")        // Beschwerden
        .flag(0)
        .text("") // OperationGeplantJN, GeplanteOperation
        .flag(1)
        .text("Schonkost") // DiaetJN, Diaet
        .text("")          // AktuelleMedikamente
        .texte(3)          // AdresseWeitererArzt .. MedikamenteWeitererArzt
        .flag(0)
        .texte(2) // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehigkeit
        .flag(0xff)
        .ganz(0)
        .text("")          // a Flag, an Int and a Text the form no longer has
        .text("Gastritis") // Krankheit
        .text("Frage 5");  // AntwortZuFrage
}

// L142 of 12.2001: before KotoskopieJN, Kotoskopie and ZigarettenJN; the sixth Flag of the old diagnosis
// takes the Text behind it into SonstigeDiagnose.
AltSatz l142Von2001() {
    return AltSatz::kopf("12.2001", "L142", "Erkl\xE4rung Magen- und Zw\xF6lffingerdarmerkrankungen", 2,
                         "VP2")
        .dazu(gemeinsam("Magenbeschwerden", false))
        .flag(0)
        .flag(1)
        .flag(0)
        .flag(0) // SodbrennenJN .. DurchfallJN
        .flag(0)
        .text("")          // SonstigeSymptomeJN, SonstigeSymptome
        .text("monatlich") // HaeufigkeitBeschwerden
        .flag(0)
        .flag(0)
        .flag(0)
        .flag(0)
        .flag(0)
        .flag(1)           // the old diagnosis: the sixth Flag
        .text("Reizmagen") // into SonstigeDiagnose
        .flag(0)
        .text("") // GastroskopieJN, Gastroskopie
        .flag(0)
        .text("") // OperationJN, Operation
        .text("") // Medikamente
        .flag(0)
        .text("")
        .text("") // AlkoholJN, Alkohol, Zigaretten
        .flag(0)
        .text("")
        .text("gelegentlich") // GeheiltJN, GeheiltSeit, Beschwerden
        .flag(0)
        .text("")
        .flag(0)
        .text("")  // OperationGeplantJN .. Diaet
        .texte(2); // AktuelleMedikamente, MedikamenteWeitererArzt
}

// L138 of 10.1999: the common answers between the own fields.
AltSatz l138Von1999() {
    return AltSatz::kopf("10.1999", "L138", "Erkl\xE4rung Herz- und Kreislauferkrankungen", 2, "VP1")
        .dazu(vor200012Dreier())
        .text("1997")
        .ganz(28) // Beginn, Dauer
        .flag(1)
        .flags(6, 0) // BluthochdruckJN .. HerzfehlerJN
        .flag(0)
        .text("")                       // SonstigeDiagnoseJN, SonstigeDiagnose
        .text("Dr. Weber, Ring 5, Ulm") // ArztAdresse
        .flag(0)
        .flag(0)
        .text("") // KrankenhausJN, KurJN, KrankenhausKur
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")           // Katheder .. Operation
        .text("Metoprolol") // Medikamente
        .flag(0)
        .text("")
        .text("keine") // AlkoholJN, Alkohol, Zigaretten
        .flag(0)
        .text("")
        .text("Kopfschmerz") // GeheiltJN, GeheiltSeit, Beschwerden
        .flag(0)
        .text("")
        .text("Metoprolol") // OperationGeplantJN, GeplanteOperation, AktuelleMedikamente
        .ganz(150)
        .ganz(95)
        .text("09.1999") // BlutdruckSyst, BlutdruckDiast, DatumBlutdruck
        .text("unauff\xE4llig")
        .texte(2) // EKG, Roentgen, Blutuntersuchung
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .texte(3) // AdresseWeitererArzt .. MedikamenteWeitererArzt
        .flag(0)
        .texte(2) // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehigkeit
        .flag(0xff)
        .ganz(0)
        .text("")               // a Flag, an Int and a Text the form no longer has
        .text("Bluthochdruck"); // Krankheit
}

// L138 of 04.2002: without ZigarettenJN and Puls.
AltSatz l138Von2002() {
    return AltSatz::kopf("04.2002", "L138", "Erkl\xE4rung Herz- und Kreislauferkrankungen", 2, "VP1")
        .dazu(gemeinsam("Herzrhythmusst\xF6rung", false))
        .flags(4, 0)
        .flag(1)
        .flags(2, 0) // BluthochdruckJN .. HerzfehlerJN
        .flag(0)
        .text("") // SonstigeDiagnoseJN, SonstigeDiagnose
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")          // Katheder .. Operation
        .text("Flecainid") // Medikamente
        .flag(0)
        .text("")
        .text("") // AlkoholJN, Alkohol, Zigaretten
        .flag(0)
        .text("")
        .text("Herzstolpern") // GeheiltJN, GeheiltSeit, Beschwerden
        .flag(0)
        .text("")
        .text("Flecainid") // OperationGeplantJN, GeplanteOperation, AktuelleMedikamente
        .ganz(125)
        .ganz(80)
        .text("03.2002") // BlutdruckSyst, BlutdruckDiast, DatumBlutdruck
        .text("Extrasystolen")
        .texte(2) // EKG, Roentgen, Blutuntersuchung
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .text(""); // MedikamenteWeitererArzt
}

// The L143 fields from ESWLJN to NiereEntfernt, empty.
AltSatz l143Behandlung() { return AltSatz().flag(0).text("").flag(0).text("").flag(0).text(""); }
// The L143 fields from OperationGeplantJN to MedikamenteWeitererArzt, with a blood pressure.
AltSatz l143Befunde() {
    return AltSatz()
        .flag(0)
        .text("")
        .text("") // OperationGeplantJN, GeplanteOperation, AktuelleMedikamente
        .text("")
        .text("Erythrozyten") // Blutuntersuchung, Urinuntersuchung
        .flag(0)
        .text("") // NierenfunktionsEinschraenkungJN, ..Einschraenkung
        .ganz(130)
        .ganz(85)
        .text("") // BlutdruckSyst, BlutdruckDiast, DatumBlutdruck
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .text(""); // MedikamenteWeitererArzt
}

// L143 of 01.2000: the common answers between the own fields, and AntwortZuFrage behind them.
AltSatz l143Von2000() {
    return AltSatz::kopf("01.2000", "L143", "Erkl\xE4rung Harnwegs- und Nierenerkrankungen", 2, "VP1")
        .dazu(vor200012Dreier())
        .text("1999")
        .ganz(1) // Beginn, Dauer: a week
        .flag(1)
        .flags(4, 0) // NierensteineJN .. HarnwegsinfekteJN
        .flag(0)
        .text("")                           // SonstigeDiagnoseJN, SonstigeDiagnose
        .text("Dr. Klein, Burgweg 1, Jena") // ArztAdresse
        .flag(1)
        .flag(0)
        .text("Uniklinik Jena") // KrankenhausJN, KurJN, KrankenhausKur
        .flag(1)
        .text("12.1999") // ESWLJN, ESWL
        .flag(0)
        .text("")
        .flag(0)
        .text("") // OperationJN .. NiereEntfernt
        .flag(0)
        .text("")
        .text("") // AlkoholJN, Alkohol, Zigaretten
        .flag(1)
        .text("01.2000")
        .text("") // GeheiltJN, GeheiltSeit, Beschwerden
        .dazu(AltSatz().flag(0).text("").text("").text("").text("").flag(0).text("").ganz(120).ganz(80).text(
            ""))
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .texte(3) // AdresseWeitererArzt .. MedikamenteWeitererArzt
        .flag(0)
        .texte(2) // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehigkeit
        .flag(0xff)
        .ganz(0)
        .text("")            // a Flag, an Int and a Text the form no longer has
        .text("Nierenstein") // Krankheit
        .text("Frage 7");    // AntwortZuFrage
}

// L143 of 03.2002: before Koerperseiten and ZigarettenJN.
AltSatz l143Von200203() {
    return AltSatz::kopf("03.2002", "L143", "Erkl\xE4rung Harnwegs- und Nierenerkrankungen", 2, "VP2")
        .dazu(gemeinsam("Harnwegsinfekt", false))
        .flags(4, 0)
        .flag(1) // NierensteineJN .. HarnwegsinfekteJN
        .flag(0)
        .text("") // SonstigeDiagnoseJN, SonstigeDiagnose
        .dazu(l143Behandlung())
        .flag(0)
        .text("")
        .text("") // AlkoholJN, Alkohol, Zigaretten
        .flag(1)
        .text("02.2002")
        .text("") // GeheiltJN, GeheiltSeit, Beschwerden
        .dazu(l143Befunde());
}

// L143 of 05.2002: a Text behind Koerperseiten that says "medikamentös", and the medication behind it.
AltSatz l143Von200205() {
    return AltSatz::kopf("05.2002", "L143", "Erkl\xE4rung Harnwegs- und Nierenerkrankungen", 2, "VP1")
        .dazu(gemeinsam("Nierenkolik", true))
        .flag(1)
        .flags(4, 0) // NierensteineJN .. HarnwegsinfekteJN
        .flag(0)
        .text("")                // SonstigeDiagnoseJN, SonstigeDiagnose
        .text("links")           // Koerperseiten
        .text("medikament\xF6s") // the treatment, a Text the form no longer has
        .text("Tamsulosin")      // Medikamente, behind it
        .dazu(l143Behandlung())
        .flag(0)
        .text("")
        .flag(0)
        .text("") // AlkoholJN, Alkohol, ZigarettenJN, Zigaretten
        .flag(1)
        .text("05.2002")
        .text("") // GeheiltJN, GeheiltSeit, Beschwerden
        .dazu(l143Befunde());
}

// L143 of 07.2002: Koerperseiten and ZigarettenJN, before Medikamente and NierensteineNochVorhandenJN.
AltSatz l143Von200207() {
    return AltSatz::kopf("07.2002", "L143", "Erkl\xE4rung Harnwegs- und Nierenerkrankungen", 2, "VP1")
        .dazu(gemeinsam("Glomerulonephritis", true))
        .flags(2, 0)
        .flag(1)
        .flags(2, 0) // NierensteineJN .. HarnwegsinfekteJN
        .flag(0)
        .text("")      // SonstigeDiagnoseJN, SonstigeDiagnose
        .text("beide") // Koerperseiten
        .dazu(l143Behandlung())
        .flag(0)
        .text("")
        .flag(1)
        .text("10 am Tag") // AlkoholJN, Alkohol, ZigarettenJN, Zigaretten
        .flag(0)
        .text("")
        .text("M\xFC"
              "digkeit") // GeheiltJN, GeheiltSeit, Beschwerden
        .dazu(l143Befunde());
}

// L141 of 10.1999: the common answers between the own fields.
AltSatz l141Von1999() {
    return AltSatz::kopf("10.1999", "L141", "Erkl\xE4rung Gyn\xE4kologische Erkrankungen", 2, "VP2")
        .dazu(vor200012Dreier())
        .text("1996") // Beginn
        .text("Blutungen")
        .text("Myom") // Symptome, Diagnose
        .text("Dr. Lang, Parkstra\xDF"
              "e 9, Kassel") // ArztAdresse
        .flag(1)
        .flag(0)
        .text("Klinikum Kassel") // KrankenhausJN, KurJN, KrankenhausKur
        .flag(1)
        .text("Myomentfernung 1997") // OperationJN, Operation
        .flag(1)
        .flag(0) // BefundGutartigJN, BefundBoesartigJN
        .flag(0)
        .text("") // OrganeEntferntJN, EntfernteOrgane
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("") // Strahlen-, Radium-, Chemotherapie
        .text("")
        .text("") // Behandlung, Medikamente
        .flag(1)
        .text("1998")
        .text("") // GeheiltJN, GeheiltSeit, Beschwerden
        .flag(1)  // KontrolleJN
        .flag(0)
        .text("") // OperationGeplantJN, GeplanteOperation
        .flag(1)
        .text("j\xE4hrlich") // VorsorgeJN, Vorsorge
        .flag(1)
        .flag(0)  // BefundEinwandfreiJN, BefundKontrollbeduerftigJN
        .texte(2) // AdresseWeitererArzt, ErkrankungWeitererArzt
        .flag(1)
        .text("03.1997")
        .text("Operation") // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehigkeit
        .flag(0xff)
        .ganz(0)
        .text("")      // a Flag, an Int and a Text the form no longer has
        .text("Myom"); // Krankheit
}

// L134 of 04.2002: before ZigarettenJN.
AltSatz l134Von2002() {
    return AltSatz::kopf("04.2002", "L134", "Erkrankung Diabetes mellitus", 2, "VP1")
        .dazu(gemeinsam("Diabetes mellitus", false))
        .flag(0)
        .flag(1) // TypI_JN, TypII_JN
        .flag(1)
        .text("1999") // DiaetJN, DiaetSeit
        .flag(0)
        .text("")
        .text("") // InsulinJN, InsulinSeit, Praeparate
        .flag(0)
        .text("") // InsulinpumpeJN, InsulinpumpeSeit
        .flag(1)
        .text("2000")      // TablettenJN, TablettenSeit
        .text("Metformin") // Medikamente
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("") // Schock, Eiweiss, Augenhintergrund
        .flag(0)
        .text("") // AlkoholJN, Alkohol
        .text("") // Zigaretten
        .flag(1)
        .text("2000") // OptimalEingestelltJN, OptimalEingestelltSeit
        .text("")     // Beschwerden
        .flag(1)
        .text("viertelj\xE4hrlich") // KontrolleJN, Kontrolle
        .text("03.2002")
        .text("6,8")
        .text("110")
        .text("160") // Blutuntersuchung .. BlutzuckerNachEssen
        .text("03.2002")
        .text("negativ")
        .text("negativ")
        .text("negativ") // Urinuntersuchung .. Aceton
        .ganz(135)
        .ganz(85)
        .text("03.2002") // BlutdruckSyst, BlutdruckDiast, DatumBlutdruck
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .flag(0)
        .text("")
        .text(""); // MedikamenteWeitererArzt
}

// L139: its own fields up to FacharztZuletzt.
AltSatz l139Bis(const char* diagnose) {
    return AltSatz()
        .text(diagnose) // Diagnose
        .flag(1)
        .flags(6, 0) // ErkrankungLinks .. ErkrankungFolge
        .text("")    // ErkrankungFolgeBeschreibung
        .flag(0)
        .text("") // AuftretenEinmalig, AuftretenEinmaligSeit
        .flag(1)
        .text("2005")
        .text("monatlich")
        .text("Stunden")
        .text("05.2008") // AuftretenMehrfach ..
        .flag(0)
        .text("") // AuftretenFortwaehrend, AuftretenFortwaehrendSeit
        .flag(0)
        .text("")
        .flag(1)
        .text("2005") // FolgenNein .. BeschwerdenSeit
        .flag(1)
        .flag(1)
        .flag(0)
        .flag(0)
        .flag(0)  // HoerminderungJa .. SonstigeJa
        .text("") // SonstigeBeschreibung
        .flag(1)
        .text("2005 bis 2008")
        .text("06.2008"); // FacharztJN, FacharztZeitraum, FacharztZuletzt
}
// L139: from BehandlungNein to ErkrankungArbeitsunfaehig, then the triple of records before 08.2009 and
// the change of workplace.
AltSatz l139Ab() {
    return AltSatz()
        .flag(0)
        .flag(1)
        .text("Betahistin") // BehandlungNein .. BehandlungMedikamenteArt
        .flag(0)
        .text("") // InfusionstherapieJa, InfusionZeitraum
        .flags(3, 0)
        .flag(1)
        .flag(1)
        .flag(0) // Hoergeraet.. TinnitusRechtsJa
        .flag(0)
        .text("")
        .text("") // OperationJa, OperationArt, OperationZeitpunkt
        .flag(0)
        .flag(1)
        .text("06.2008")
        .text("Innenohrschwerh\xF6rigkeit") // Untersuchung..
        .flag(0)
        .texte(2)
        .flag(0)
        .texte(2)
        .flag(0)
        .texte(2)
        .flag(0)
        .texte(2) // Gleichgewicht .. Tomografie
        .flag(0)
        .texte(2) // ArbeitsunfaehigJN .. ErkrankungArbeitsunfaehig
        .flag(0xff)
        .ganz(0)
        .text("") // a Flag, an Int and a Text the form no longer has
        .flag(0)
        .text(""); // ArbeitsplatzwechselJN, DatumArbeitsplatzwechsel
}

// L139 of 07.2008: before ArztName.
AltSatz l139Von200807() {
    return AltSatz::kopf("07.2008", "L139", "Erkl\xE4rung Ohren", 3, "VP1")
        .dazu(gemeinsam("Tinnitus", true))
        .dazu(l139Bis("Tinnitus"))
        .text("Dr. Hahn, Lindenallee 4, Trier") // ArztAdresse
        .dazu(l139Ab());
}

// L139 of 08.2008: ArztName, and still the triple.
AltSatz l139Von200808() {
    return AltSatz::kopf("08.2008", "L139", "Erkl\xE4rung Ohren", 3, "VP2")
        .dazu(gemeinsam("H\xF6rsturz", true))
        .dazu(l139Bis("H\xF6rsturz"))
        .text("Dr. Hahn")             // ArztName
        .text("Lindenallee 4, Trier") // ArztAdresse
        .dazu(l139Ab());
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

// L441 of 11.2001: stored long before 04.2010 and read with today's one layout.
AltSatz l441Von2001() {
    return AltSatz::kopf("11.2001", "L441", "Erkl\xE4rung Flugsport", 1, "VP1")
        .flag(1)
        .flags(11, 0) // FlugzeugJN .. SonstigeLuftfahrzeug2JN
        .flag(1)
        .flags(14, 0)  // PPLaJN .. LuftfahrtscheinJN
        .texte(12, "") // SonstigeLuftfahrzeug1 .. ArtDerAuflagen
        .flag(1)
        .flags(20, 0)       // SichtflugJN .. FlugunfallJN
        .texte(2, "")       // SonstigeBerechtigung1, SonstigeBerechtigung2
        .text("Cessna 172") // FlugLuftsportgeraet
        .text("Motorflug")  // FlugLuftsportdisziplin
        .texte(3, "")       // ArtNameVeranstaltung, Veranstalter, FluglandKontinent
        .text("");          // NaehereAngabenUnfall
}

// L450 of 10.1999: the header without Seitenanzahl, then the one layout of the mountain form.
AltSatz l450Von1999() {
    return AltSatz::kopf("10.1999", "L450", "Erkl\xE4rung Bergsport", 1, "VP2")
        .text("1985") // Beginn
        .flag(1)
        .flag(0) // PrivatJN, BeruflichJN
        .flag(1)
        .text("1990")
        .text("Grundkurs Fels") // MitgliedBergsportvereinJN, ..Seit, Ausbildung
        .flag(0)
        .text("") // BergunfaelleJN, Bergunfaelle
        .flag(1)
        .ganz(40) // BergwandernJN, BergwandernStunden
        .flag(0)
        .ganz(0) // Hochtouren
        .flag(1)
        .ganz(25)
        .ganz(6) // KletternJN, KletternStunden, KletternGrad
        .flag(0)
        .ganz(0)
        .flag(0)
        .ganz(0)
        .flag(0)
        .ganz(0)
        .flag(0)
        .ganz(0)
        .flag(0)
        .ganz(0)
        .flag(0)
        .ganz(0) // Eisklettern .. Gebaeudeklettern
        .flag(0)
        .ganz(0)
        .text("") // AndereSportarten
        .flag(0)
        .text("") // Trekking
        .flag(0)
        .texte(2, "")   // Expeditionen
        .flags(6, 0xff) // EuropaJN .. AustralienJN
        .text("")       // Hoehe
        .flags(7, 0)    // AlleingaengerJN .. HueftgurtJN
        .flag(1);       // RisikoMitVersichernJN
}

// L451 of 11.2001: before ApnoetauchenJN came with 04.2005; the record ends with the Tauchlehrer Flags.
AltSatz l451Von2001() {
    return AltSatz::kopf("11.2001", "L451", "Erkl\xE4rung Tauchsport", 2, "VP1")
        .flag(1)
        .flag(1)
        .flags(3, 0) // TauchscheinJN, TauglichJN, NichtTauglichJN .. KeineUntersuchungJN
        .flag(0)
        .flag(1)
        .flags(5, 0) // SchnorchelnJN .. SportlehrerJN
        .flag(0)
        .text("") // SonstigeTauchartJN, SonstigeTauchart
        .flag(1)
        .text("Rotes Meer") // AuslandJN, Ausland
        .text("30 m")       // Tauchtiefe
        .flags(9, 0)        // UnterwasserFotografieJN .. HoehlentauchenJN
        .flag(0)
        .text("") // SonstigeAktivitaet
        .flag(0)
        .flag(1)
        .flag(0)      // AlleinJN, PaarweiseJN, GruppenJN
        .text("1995") // Beginn
        .ganz(1999)
        .ganz(20)
        .ganz(2000)
        .ganz(25)
        .ganz(2001)
        .ganz(30)       // Jahr1 .. Stunden3
        .text("CMAS**") // Tauchausbildung
        .flag(0)
        .text("") // Zusatzkurse
        .flag(1)
        .flags(8, 0) // MeerJN .. SonstigeGewaesserJN
        .text("")
        .flag(0)
        .text("") // SonstigeGewaesser, KrankheitJN, Krankheit
        .flag(1)
        .flags(3, 0); // TauchlehrerNein .. TauchlehrerBeruflich
}

// One block of a race kind: the Flag, the races so far and planned, their names.
AltSatz rennen(unsigned char jn, int bisher, int geplant, const char* bezeichnung) {
    return AltSatz().flag(jn).ganz(bisher).ganz(geplant).text(bezeichnung);
}

// L452 of 10.1999: the header without Seitenanzahl; the hill climb is Bergrennen.. and Bergstrecken...
AltSatz l452Von1999() {
    AltSatz s = AltSatz::kopf("10.1999", "L452", "Erkl\xE4rung Automobilsport", 1, "VP1")
                    .text("1994")
                    .flag(0)
                    .flag(1) // Beginn, BerufsfahrerJN, AmateurJN
                    .text("N")
                    .text("Porsche")
                    .text("911")
                    .text("220")
                    .text("3600"); // Gruppe, Marke, Typ, KW, Hubraum
    s.dazu(rennen(1, 12, 6,
                  "VLN N\xFC"
                  "rburgring"))                 // Rundstrecken
        .dazu(rennen(0, 0, 0, ""))              // Langstrecken
        .dazu(rennen(1, 3, 2, "Schauinsland")); // BergrennenJN, Bergstrecken..
    for (int i = 0; i < 6; ++i)
        s.dazu(rennen(0, 0, 0, "")); // Rallye1 .. GoKartB
    return s.flag(0)
        .ganz(0)
        .ganz(0)
        .text("") // AndereRennenJN, AndereRennen1..
        .ganz(0)
        .ganz(0)
        .text("")
        .ganz(0)
        .ganz(0)
        .text("")              // AndereRennen2.., AndereRennen3..
        .text("2. Platz 1998") // Plazierungen
        .flag(0)
        .text("")
        .text(""); // UnfaelleJN, Unfaelle, WeitereAngaben
}

// L453 of 10.1999: the header without Seitenanzahl.
AltSatz l453Von1999() {
    AltSatz s = AltSatz::kopf("10.1999", "L453", "Erkl\xE4rung Motorradsport", 1, "VP2")
                    .text("1996")
                    .flag(0)
                    .flag(1)
                    .text("KTM")
                    .text("SX 250")
                    .text("1")
                    .text("35")
                    .text("250"); // Beginn .. Hubraum
    s.dazu(rennen(0, 0, 0, "")).dazu(rennen(1, 8, 10, "ADAC MX Masters"));
    for (int i = 0; i < 5; ++i)
        s.dazu(rennen(0, 0, 0, "")); // Bergrennen .. Speedway
    return s.flag(0)
        .ganz(0)
        .ganz(0)
        .text("")
        .ganz(0)
        .ganz(0)
        .text("")
        .ganz(0)
        .ganz(0)
        .text("") // AndereRennen
        .flag(1)  // RisikoMitversichernJN
        .text("") // Plazierungen
        .flag(1)
        .text("Schl\xFC"
              "sselbeinbruch 1998")
        .text(""); // UnfaelleJN, Unfaelle, WeitereAngaben
}

// L454 of 11.2001: before 08.2008 and read with today's one layout.
AltSatz l454Von2001() {
    return AltSatz::kopf("11.2001", "L454", "Erkl\xE4rung Sportarten allgemein", 2, "VP1")
        .text("Triathlon seit 1997") // SportartBeginn
        .flag(1)
        .flags(3, 0) // AmateurJN .. TrainerJN
        .ganz(100)
        .ganz(0) // SportanteilProzent, BerufsanteilProzent
        .flag(0)
        .text("") // LizenzAusbildungJN, ..Beschreibung
        .flags(5, 0)
        .flag(1)
        .flag(1)
        .text("Frankreich")
        .flag(0)
        .text("") // EinZweiJahrJN .. WeltweitLaender
        .flags(3, 0)
        .text("") // HalleJN .. SonstigeOrteBezeichnung
        .flag(1)
        .text("Ironman Roth")
        .ganz(1)
        .ganz(1) // Wettbewerbe
        .flag(0)
        .text("") // Rekordversuche
        .flag(0)
        .texte(2, "") // AusruestungTest
        .flags(4, 0)
        .text("") // SportAlleineJN .. SportSonstigesBeschreibung
        .flags(4, 0)
        .text("") // OeffentlicheVeranstJN .. SonstigesUmfeldBeschreibung
        .flag(0)
        .text("") // Sicherheitsvorkehrung
        .flag(0)
        .texte(4, ""); // Sportverletzung
}

// X278 of 08.2008: before 04.2010 and read with today's one layout.
AltSatz x278Von2008() {
    return AltSatz::kopf("08.2008", "X278", "Erkl\xE4rung Freizeitreiter", 1, "VP1")
        .flag(1)
        .flag(1)
        .flags(16, 0) // ReitenJN, SpringreitenJN, RennreitenJN .. ReitunfaelleJN
        .texte(5, "") // SonstigeReitsportart1 .. ReitunfaelleAngaben
        .ganz(0)
        .ganz(0)
        .ganz(0)
        .ganz(0)
        .ganz(0)
        .ganz(0); // AnzahlSpringDressurturniere .. AnzahlAndereWettkaempfe
}

// L036, two stays of one person told apart by Land and Index: one of 10.1999 without Seitenanzahl, one of
// 11.2001.
AltSatz l036(const char* version, const char* land, const char* dauer, int index) {
    return AltSatz::kopf(version, "L036", "Erkl\xE4rung Auslandsaufenthalt", 1, "VP1")
        .text(land)
        .flag(1)
        .text("") // Land, ErsterBeruflicherAufenthaltJN, ErsterBeruflicherAufenthalt
        .text(dauer)
        .flag(0)
        .flag(0)
        .flag(1)
        .flags(4, 0)
        .text("") // KoerperlichJN .. SonstigeTaetigkeit
        .flags(6, 0)
        .texte(3, "")
        .flag(1)
        .text("Bergbau") // NaesseJN .. ArtDesBetriebes
        .flags(3, 0)
        .flag(1)
        .flags(5, 0)
        .text("") // HausJN .. SonstigeUnterkunft
        .flags(3, 0)
        .flag(1)
        .flag(0)
        .text("") // HauptstadtJN .. SonstigerAufenthaltsort
        .ganz(index);
}

// L241 of 01.2000: the triple behind the header, the common answers between the own fields, AntwortZuFrage
// last.
AltSatz l241Von2000() {
    return AltSatz::kopf("01.2000", "L241", "Erkl\xE4rung Atemwegserkrankungen", 2, "VP1")
        .flag(0xff)                            // a value the form no longer has
        .ganz(0)                               // a value the form no longer has
        .text("")                              // a value the form no longer has
        .text("Asthma bronchiale")             // Diagnose
        .text("1996")                          // Beginn
        .ganz(28)                              // Dauer
        .text("Atemnot bei Belastung")         // Frage1
        .flag(1)                               // AsthmaJN
        .flag(0xff)                            // ChronischeBronchitisJN
        .flag(0xff)                            // LungenemphysemJN
        .flag(0xff)                            // LungenBronchialtumorJN
        .flag(0xff)                            // LungenEmbolieJN
        .flag(0xff)                            // LungentuberkoloseJN
        .flag(0xff)                            // SarkoidoseJN
        .flag(0xff)                            // SonstigeJN
        .text("")                              // Sonstige
        .text("Dr. Lang, Lindenweg 2, Passau") // ArztAdresse
        .flag(0xff)                            // KrankenhausJN
        .flag(0xff)                            // KurJN
        .text("")                              // KrankenhausKur
        .text("")                              // AdresseKrankenhausKurstaette
        .flag(0xff)                            // OperationJN
        .text("")                              // Operation
        .text("Salbutamol")                    // Medikamente
        .flag(1)                               // AllergienJN
        .text("")                              // DatumAllergien
        .text("Pollen")                        // Allergien
        .flag(1)                               // AllergietestJN
        .text("Prick-Test 1998: Gr\xE4ser")    // Allergietest
        .text("nie geraucht")                  // Zigaretten
        .flag(0xff)                            // GeheiltJN
        .text("")                              // GeheiltSeit
        .text("")                              // Beschwerden
        .flag(0xff)                            // OperationGeplantJN
        .text("")                              // GeplanteOperation
        .text("")                              // AktuelleMedikamente
        .flag(0xff)                            // LungenfunktionsEinschraenkungJN
        .text("")                              // LungenfunktionsEinschraenkung
        .text("")                              // Roentgenkontrolle
        .flag(0xff)                            // BluthochdruckJN
        .text("")                              // Bluthochdruck
        .flag(0xff)                            // HerzerkrankungenJN
        .text("")                              // Herzerkrankungen
        .flag(0xff)                            // DiabetesJN
        .text("")                              // Diabetes
        .flag(0xff)                            // FettstoffwechselstoerungJN
        .text("")                              // Fettstoffwechselstoerung
        .flag(0xff)                            // NierenerkrankungJN
        .text("")                              // Nierenerkrankung
        .flag(0xff)                            // GefaessErkrankungJN
        .text("")                              // GefaessErkrankung
        .flag(0xff)                            // HauterkrankungJN
        .text("")                              // Hauterkrankung
        .flag(0xff)                            // SonstigeErkrankungJN
        .text("")                              // SonstigeErkrankung
        .text("")                              // AdresseWeitererArzt
        .text("")                              // ErkrankungWeitererArzt
        .text("")                              // MedikamenteWeitererArzt
        .flag(0xff)                            // ArbeitsunfaehigJN
        .text("")                              // DatumArbeitsunfaehigkeit
        .text("")                              // ErkrankungArbeitsunfaehigkeit
        .flag(0xff)                            // a value the form no longer has
        .ganz(0)                               // a value the form no longer has
        .text("")                              // a value the form no longer has
        .text("Asthma bronchiale")             // Krankheit
        .text("Frage 4");                      // AntwortZuFrage
}

// L249 of 10.1999: the triple behind the header, the common answers between the own fields.
AltSatz l249Von1999() {
    return AltSatz::kopf("10.1999", "L249", "Erkl\xE4rung Allergien", 2, "VP2")
        .flag(0xff)                            // a value the form no longer has
        .ganz(0)                               // a value the form no longer has
        .text("")                              // a value the form no longer has
        .flag(1)                               // AsthmaJN
        .text("")                              // Asthma
        .flag(0xff)                            // SpastischeBronchitisJN
        .text("")                              // SpastischeBronchitis
        .flag(0xff)                            // ChronischeBronchitisJN
        .text("")                              // ChronischeBronchitis
        .flag(1)                               // HeuschnupfenJN
        .text("seit 1990, Mai bis Juli")       // Heuschnupfen
        .flag(0)                               // NahrungsmittelJN
        .text("")                              // Nahrungsmittel
        .flag(0)                               // InsektensticheJN
        .text("")                              // Insektenstiche
        .flag(0xff)                            // ArbeitsstoffeJN
        .text("")                              // Arbeitsstoffe
        .flag(0xff)                            // SonstigeUeberempfindlichkeitenJN
        .text("")                              // SonstigeUeberempfindlichkeiten
        .flag(0xff)                            // EkzemJN
        .text("")                              // Ekzem
        .flag(0xff)                            // NesselsuchtJN
        .text("")                              // Nesselsucht
        .flag(0xff)                            // NeurodermitisJN
        .text("")                              // Neurodermitis
        .flag(0xff)                            // GesamterKoerperJN
        .flag(0xff)                            // HaendeJN
        .flag(0xff)                            // GesichtJN
        .flag(0xff)                            // SonstigeKoerperstellenJN
        .text("")                              // SonstigeKoerperstellen
        .flag(0xff)                            // WeitereHauterkrankungenJN
        .text("")                              // WeitereHauterkrankungen
        .flag(0xff)                            // ErkrankungenFamilieJN
        .text("")                              // ErkrankungenFamilie
        .flag(0xff)                            // HausarbeitJN
        .flag(0xff)                            // ArbeitJN
        .flag(0)                               // TiereJN
        .flag(0xff)                            // AnstrengungenJN
        .flag(0xff)                            // LebensmittelJN
        .flag(0xff)                            // AndereGelegenheitenJN
        .text("")                              // AndereGelegenheiten
        .text("Dr. Lang, Lindenweg 2, Passau") // ArztAdresse
        .flag(0xff)                            // KrankenhausJN
        .flag(0xff)                            // KurJN
        .text("")                              // KrankenhausKur
        .text("")                              // AdresseKrankenhausKurstaette
        .flag(1)                               // AllergietestJN
        .text("Prick-Test 1998: Gr\xE4ser")    // Allergietest
        .text("Dr. Berg, Hautarzt, Straubing") // ArztAllergien
        .text("Salbutamol")                    // Medikamente
        .flag(1)                               // HyposensibilisierungJN
        .text("1998 bis 2000")                 // Hyposensibilisierung
        .flag(0xff)                            // HyposensibilisierungGeplantJN
        .text("")                              // HyposensibilisierungGeplant
        .flag(0xff)                            // ArbeitsplatzwechselJN
        .text("")                              // Arbeitsplatzwechsel
        .text("")                              // AktuelleMedikamente
        .text("")                              // AdresseWeitererArzt
        .text("")                              // DatumBehandlungWeitererArzt
        .text("")                              // ErkrankungWeitererArzt
        .flag(0xff)                            // ArbeitsunfaehigJN
        .text("")                              // DatumArbeitsunfaehigkeit
        .text("")                              // ErkrankungArbeitsunfaehigkeit
        .flag(0xff)                            // a value the form no longer has
        .ganz(0)                               // a value the form no longer has
        .text("")                              // a value the form no longer has
        .text("Asthma bronchiale");            // Krankheit
}

// L241 of 04.2002: the current layout without ZigarettenJN, no change of workplace.
AltSatz l241Von2002() {
    return AltSatz::kopf("04.2002", "L241", "Erkl\xE4rung Atemwegserkrankungen", 2, "VP1")
        .text("Asthma bronchiale")             // Krankheit
        .text("Frage 4")                       // AntwortZuFrage
        .text("1996")                          // Beginn
        .ganz(28)                              // Dauer
        .text("Dr. Lang, Lindenweg 2, Passau") // ArztAdresse
        .flag(0xff)                            // KrankenhausJN
        .flag(0xff)                            // KurJN
        .text("")                              // KrankenhausKur
        .text("")                              // AdresseKrankenhausKurstaette
        .text("")                              // AdresseWeitererArzt
        .text("")                              // DatumBehandlungWeitererArzt
        .text("")                              // ErkrankungWeitererArzt
        .flag(0xff)                            // ArbeitsunfaehigJN
        .text("")                              // DatumArbeitsunfaehigkeit
        .text("")                              // ErkrankungArbeitsunfaehigkeit
        .text("Asthma bronchiale")             // Diagnose
        .text("Atemnot bei Belastung")         // Frage1
        .flag(1)                               // AsthmaJN
        .flag(0xff)                            // ChronischeBronchitisJN
        .flag(0xff)                            // LungenemphysemJN
        .flag(0xff)                            // LungenBronchialtumorJN
        .flag(0xff)                            // LungenEmbolieJN
        .flag(0xff)                            // LungentuberkoloseJN
        .flag(0xff)                            // SarkoidoseJN
        .flag(0xff)                            // SonstigeJN
        .text("")                              // Sonstige
        .flag(0xff)                            // OperationJN
        .text("")                              // Operation
        .text("Salbutamol")                    // Medikamente
        .flag(1)                               // AllergienJN
        .text("")                              // DatumAllergien
        .text("Pollen")                        // Allergien
        .flag(1)                               // AllergietestJN
        .text("Prick-Test 1998: Gr\xE4ser")    // Allergietest
        .text("nie geraucht")                  // Zigaretten
        .flag(0xff)                            // GeheiltJN
        .text("")                              // GeheiltSeit
        .text("")                              // Beschwerden
        .flag(0xff)                            // OperationGeplantJN
        .text("")                              // GeplanteOperation
        .text("")                              // AktuelleMedikamente
        .flag(0xff)                            // LungenfunktionsEinschraenkungJN
        .text("")                              // LungenfunktionsEinschraenkung
        .text("")                              // Roentgenkontrolle
        .flag(0xff)                            // BluthochdruckJN
        .text("")                              // Bluthochdruck
        .flag(0xff)                            // HerzerkrankungenJN
        .text("")                              // Herzerkrankungen
        .flag(0xff)                            // DiabetesJN
        .text("")                              // Diabetes
        .flag(0xff)                            // FettstoffwechselstoerungJN
        .text("")                              // Fettstoffwechselstoerung
        .flag(0xff)                            // NierenerkrankungJN
        .text("")                              // Nierenerkrankung
        .flag(0xff)                            // GefaessErkrankungJN
        .text("")                              // GefaessErkrankung
        .flag(0xff)                            // HauterkrankungJN
        .text("")                              // Hauterkrankung
        .flag(0xff)                            // SonstigeErkrankungJN
        .text("")                              // SonstigeErkrankung
        .text("");                             // MedikamenteWeitererArzt
}

// L243 of 11.2001: the change of workplace, not yet the psychic illnesses of 05.2002.
AltSatz l243Von2001() {
    return AltSatz::kopf("11.2001", "L243", "Erkl\xE4rung Epilepsie", 2, "VP1")
        .text("Epilepsie")                     // Krankheit
        .text("Frage 4")                       // AntwortZuFrage
        .text("1999")                          // Beginn
        .ganz(4)                               // Dauer
        .text("Dr. Lang, Lindenweg 2, Passau") // ArztAdresse
        .flag(0xff)                            // KrankenhausJN
        .flag(0xff)                            // KurJN
        .text("")                              // KrankenhausKur
        .text("")                              // AdresseKrankenhausKurstaette
        .text("")                              // AdresseWeitererArzt
        .text("")                              // DatumBehandlungWeitererArzt
        .text("")                              // ErkrankungWeitererArzt
        .flag(0xff)                            // ArbeitsplatzwechselJN
        .text("")                              // DatumArbeitsplatzwechsel
        .flag(0xff)                            // ArbeitsunfaehigJN
        .text("")                              // DatumArbeitsunfaehigkeit
        .text("")                              // ErkrankungArbeitsunfaehigkeit
        .flag(1)                               // GrandMalEpilepsieJN
        .flag(0xff)                            // PetitMalEpilepsieJN
        .flag(0xff)                            // SonstigeDiagnoseJN
        .text("")                              // SonstigeDiagnose
        .text("08.2001")                       // DatumAnfall
        .flag(0xff)                            // TagJN
        .flag(1)                               // NachtJN
        .flag(0xff)                            // AufregungJN
        .flag(0xff)                            // AlkoholgenussJN
        .flag(0xff)                            // SonstigesAuftretenJN
        .text("")                              // SonstigesAuftreten
        .text("")                              // AnfallDauer
        .text("2")                             // AnfaelleProJahr
        .text("")                              // DauerBewusstlosigkeit
        .flag(0xff)                            // SchwindelJN
        .flag(0xff)                            // VerletzungJN
        .text("")                              // Verletzung
        .flag(0xff)                            // AlkoholJN
        .text("")                              // Alkohol
        .flag(1)                               // FuehrerscheinJN
        .text("1995")                          // FuehrerscheinSeit
        .flag(0xff)                            // KraftfahrzeugJN
        .text("")                              // KraftfahrzeugSeit
        .flag(0xff)                            // GeheiltJN
        .text("")                              // GeheiltSeit
        .text("")                              // Beschwerden
        .text("Valproat")                      // AktuelleMedikamente
        .flag(0xff)                            // KontrolleJN
        .text("")                              // Kontrolle
        .text("unauff\xE4llig")                // EEG
        .text("")                              // Blutuntersuchung
        .flag(0xff)                            // WeitereErkrankungenJN
        .text("")                              // WeitereErkrankungen
        .text("");                             // MedikamenteWeitererArzt
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

// L300 as its version's layout holds it; the version is tested for equality, so any other version, a later
// one too, reads the oldest layout of nine fields.
AltSatz l300Von(const std::string& version) {
    const int k = std::atoi((version.substr(3, 4) + version.substr(0, 2)).c_str());
    const bool ab200210 = k == 200210 || k == 200304 || k == 200908;
    const bool ab200304 = k == 200304 || k == 200908;
    AltSatz s = AltSatz::kopf(version, "L300", "Geldw\xE4schegesetz", 1, "VN").text("Muster");
    if (ab200304) s.text("Maria");
    s.text("15011975");
    if (ab200210) s.text("Regensburg");
    if (ab200304) s.text("deutsch");
    s.flag(1).text("L01X00T47").text("Stadt Regensburg").text("").flag(0).text("").text("");
    if (k == 200908) s.flag(0).flag(1);
    return s;
}

// The research report before 06.2003: without BerufEhepartnerVN, FD, BD and AuslaendischerAntragstellerJN.
AltSatz vb077Von2003() {
    AltSatz s = AltSatz::kopf("01.2003", "VB077", "Recherchebericht zum LV-Antrag", 1, "VN");
    s.text("Regensburg").text("0941 123456").text("verheiratet").ganz(2).ganz(3200).ganz(900);
    s.text("Schreiner").text("Holzbau Huber").text("gut").text("Stadtrand").text("Eigentumswohnung").flag(1);
    const char* const arten[] = {"PHV",     "Rechtsschutz", "Hausrat", "Kfz", "Unfall",
                                 "Kranken", "Leben",        "",        ""};
    for (int i = 0; i < 9; ++i)
        s.flag(i == 0 ? 1 : 0xff)
            .text(arten[i])
            .text(i == 0 ? "Allianz" : "")
            .text(i == 0 ? "80 EUR" : "")
            .text(i == 0 ? "2001" : "")
            .text(i == 0 ? "2011" : "");
    s.text("Altersvorsorge").text("").flag(0).text("").text("").text("ohne Befund").text("").flag(1);
    return s.text("seit 1995 im Beruf")
        .text("")
        .text("")
        .text("")
        .text("")
        .text("Meier")
        .text("Hans")
        .text("4711");
}

// The supplement of 07.2004: a restored record keeps its version, as the stamp of its save never took.
AltSatz au523Von2004() {
    AltSatz s = AltSatz::kopf("07.2004", "AU523", "Beiblatt ProAktiv", 1, "VP1");
    s.text("15011975").text("w").text("Lehrerin");
    s.text("Frau").text("").text("Maria").text("Muster").text("Hauptstr. 1").text("93047").text("Regensburg");
    s.text("D").text("0941 1").text("").text("").text("Ehefrau");
    s.text("03032002").text("m").text("").texte(11).text("Sohn");
    return s;
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
        {qbFormularL441::classIsA(), l441Von2001()},
        {qbFormularL450::classIsA(), l450Von1999()},
        {qbFormularL451::classIsA(), l451Von2001()},
        {qbFormularL452::classIsA(), l452Von1999()},
        {qbFormularL453::classIsA(), l453Von1999()},
        {qbFormularL454::classIsA(), l454Von2001()},
        {qbFormularX278::classIsA(), x278Von2008()},
        {qbFormularL036::classIsA(), l036("10.1999", "Chile", "2 Jahre", 0)},
        {qbFormularL036::classIsA(), l036("11.2001", "Chile", "6 Monate", 1)},
        {qbFormularL241::classIsA(), l241Von2000()},
        {qbFormularL249::classIsA(), l249Von1999()},
        {qbFormularL241::classIsA(), l241Von2002()},
        {qbFormularL243::classIsA(), l243Von2001()},
        {qbFormularL142::classIsA(), l142Von2000()},
        {qbFormularL142::classIsA(), l142Von2001()},
        {qbFormularL138::classIsA(), l138Von1999()},
        {qbFormularL138::classIsA(), l138Von2002()},
        {qbFormularL143::classIsA(), l143Von2000()},
        {qbFormularL143::classIsA(), l143Von200203()},
        {qbFormularL143::classIsA(), l143Von200205()},
        {qbFormularL143::classIsA(), l143Von200207()},
        {qbFormularL141::classIsA(), l141Von1999()},
        {qbFormularL134::classIsA(), l134Von2002()},
        {qbFormularL139::classIsA(), l139Von200807()},
        {qbFormularL139::classIsA(), l139Von200808()},
        {qbFormularGS004::classIsA(), gs004Von("09.1999", "VP1")},
        {qbFormularGS004::classIsA(), gs004Von("03.2000", "VP2")},
        {qbFormularGS004::classIsA(), gs004Von("10.2000", "VN")},
        {qbFormularGS004::classIsA(), gs004Von("11.2001", "VP1")},
        {qbFormularGS004::classIsA(), gs004Von("05.2002", "VP2")},
        {qbFormularGS004BUZ::classIsA(), gs004BUZVon("10.2003")},
        {qbFormularGS004BUZ::classIsA(), gs004BUZVon("12.2003")},
        {qbFormularGS004LV::classIsA(), gs004LVVon2003()},
        {qbFormularGS004UZ::classIsA(), gs004UZVon2003()},
        {qbFormularL300::classIsA(), l300Von("10.1999")},
        {qbFormularL300::classIsA(), l300Von("10.2002")},
        {qbFormularL300::classIsA(), l300Von("04.2003")},
        {qbFormularL300::classIsA(), l300Von("09.2009")},
        {qbFormularVB077::classIsA(), vb077Von2003()},
        {qbFormularAU523::classIsA(), au523Von2004()},
    };
}

unsigned legacyBeispielFormulare() { return static_cast<unsigned>(legacyBeispielSaetze().size()); }

unsigned legacyBeispielAeltere() {
    unsigned aeltere = 0;
    for (const auto& [id, satz] : legacyBeispielSaetze()) {
        const qbKlasse* klasse = qbKlasseZuId(id);
        if (klasse && *klasse->version && satz.werte().front().text != klasse->version) ++aeltere;
    }
    return aeltere;
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
