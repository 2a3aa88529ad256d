#include "health/qbFormularL145.h"

#include "core/qbFormularDefinition.h"
#include "core/qbLayout.h"

QB_FORMULAR_IDENTITAET(qbFormularL145, QB_FELDER_qbFormularL145)
QB_FORMULAR_KONSTRUKTOR(qbFormularL145)
QB_FORMULAR_SPEICHERN(qbFormularL145)
QB_FORMULAR_GROESSE(qbFormularL145)
QB_FORMULAR_XML(qbFormularL145)
QB_FORMULAR_LOESCHE(qbFormularL145)

// "10.1999" (and "01.2000", which holds AntwortZuFrage behind it): the common answers stand between the
// own fields, with a Text, and a Flag, an Int and a Text, that no longer exist.
// clang-format off
static constexpr qbSchritt layout1999[] = {
    "Verletzungshergang", "Verletzung", "ArztAdresse", "KrankenhausJN", "KurJN", "KrankenhausKur",
    "AdresseKrankenhausKurstaette", qbVerworfen::Text, "GeheiltJN", "GeheiltSeit", "Beschwerden",
    "OperationJN", "Operation", "RehaJN", "Reha", "DauerfolgenJN", "Dauerfolgen", "AdresseWeitererArzt",
    "DatumBehandlungWeitererArzt", "ErkrankungWeitererArzt", "ArbeitsunfaehigJN", "DatumArbeitsunfaehigkeit",
    "ErkrankungArbeitsunfaehigkeit", qbVerworfen::Flag, qbVerworfen::Int, qbVerworfen::Text,
    "Koerperhaelfte", "Beginn", "Dauer", "Krankheit"};
// clang-format on

// Before 10.2002; VerletzteOrgane and VerletzteGelenke from 05.2002. The Text behind Verletzung is a
// field that no longer exists.
// clang-format off
static constexpr qbSchritt layoutVor200210[] = {
    "Verletzungshergang", qbSchritt("VerletzteOrgane").ab(200205), qbSchritt("VerletzteGelenke").ab(200205),
    "Verletzung", qbVerworfen::Text, "GeheiltJN", "GeheiltSeit", "Beschwerden", "OperationJN", "Operation",
    "RehaJN", "Reha", "DauerfolgenJN", "Dauerfolgen", "Koerperhaelfte"};
// clang-format on

template <class Strom>
void qbFormularL145::liesGespeichert(Strom& s) {
    qbFormularAllgGesu::restoreGuts(s);
    if (hatFruehesLayout()) {
        liesFruehesLayout(s, {"10.1999", layout1999}, felder());
    } else if (versionsSchluessel() < 200210) {
        qbLiesLayout(*this, s, {"vor 10.2002", layoutVor200210}, {&felder(), &qbFormularAllgGesu::felder()});
    } else {
        liesEigene(s);
    }
}

void qbFormularL145::restoreGuts(RWFile& f) { liesGespeichert(f); }
void qbFormularL145::restoreGuts(RWvistream& s) { liesGespeichert(s); }

RWCString qbFormularL145::AntwortFrage1() const {
    return BeginnUndDauer(Einzahl) + Verletzungshergang + " " + VerletzteOrgane + " " + VerletzteGelenke +
           " ";
}
