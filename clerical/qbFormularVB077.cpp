#include "clerical/qbFormularVB077.h"

#include "core/qbFormularDefinition.h"

#include <windows.h>

QB_FORMULAR_IDENTITAET(qbFormularVB077, QB_FELDER_qbFormularVB077)
QB_FORMULAR_KONSTRUKTOR(qbFormularVB077)
QB_FORMULAR_SPEICHERN_NUR_DATEI(qbFormularVB077)
// Records before 06.2003 end before BerufEhepartnerVN; those fields keep what the object held.
QB_FORMULAR_LADEN_NUR_DATEI(qbFormularVB077)
// The size counts the own fields although a virtual stream carries the header alone.
QB_FORMULAR_GROESSE(qbFormularVB077)
QB_FORMULAR_LOESCHE(qbFormularVB077)

namespace {

// The XML: the other fields in this order, then the contracts in passes over the index.
const char* const kXmlFolge[] = {"FD",
                                 "BD",
                                 "WohnortVN",
                                 "TelefonVN",
                                 "FamilienstandVN",
                                 "AnzahlKinderVN",
                                 "MtlEinkommenVN",
                                 "MtlBelastungVN",
                                 "BerufVN",
                                 "BerufEhepartnerVN",
                                 "ArbeitgeberVN",
                                 "WohnqualitaetVN",
                                 "WohnhaftGegendVN",
                                 "HausGrundbesitzVN",
                                 "WeitereVertraegeJN",
                                 "ZweckLV",
                                 "SonstigerZweckLV",
                                 "VerbindungKreditJN",
                                 "Kreditinstitut",
                                 "Verhandlungspartner",
                                 "VCAuskunft",
                                 "ErgebnisVCAuskunft",
                                 "BestandssicherJN",
                                 "BestandssicherBegruendung",
                                 "AuslaendischerAntragstellerJN",
                                 "SeitWannInBRD",
                                 "DauerAufenthaltserlaubnis",
                                 "NationalitaetEhepartner",
                                 "BerufEhepartner",
                                 "NameRechercheur",
                                 "VornameRechercheur",
                                 "FDBDAgenturRechercheur",
                                 nullptr};
constexpr int kVertraege = 9;
#define QB_VERTRAEGE_VB077                                                                                   \
    { "VertragJN", "Art", "Gesellschaft", "Beitrag", "Seit", "Ablauf" }

// The nine contracts are no part of operator==.
bool keinVertrag(const qbFeld& z) { return !z.inXmlDurchgaengen; }

} // namespace

void qbFormularVB077::XMLgetDat(CQBXMLdata& knoten) const {
    knoten.clear(klassenName());
    CQBXMLdata kopf("");
    qbFormular::XMLgetDat(kopf);
    knoten.add(std::move(kopf));
    felder().xmlSchreibe(*this, knoten, kXmlFolge);
    felder().xmlSchreibeReihen(*this, knoten, kVertraege, QB_VERTRAEGE_VB077);
}

void qbFormularVB077::XMLputDat(CQBXMLdata& knoten) {
    if (knoten.Typ() != klassenName()) return;
    felder().xmlLies(*this, knoten, kXmlFolge);
    felder().xmlLiesReihen(*this, knoten, kVertraege, QB_VERTRAEGE_VB077);
    knoten.Typ(qbFormular::klassenName());
    qbFormular::XMLputDat(knoten);
    knoten.Typ(klassenName());
}

// qbFormular's rule on a copy of the header, then FD, BD and the other answers one by one.
int qbFormularVB077::operator==(const qbFormularVB077& other) const {
    const qbFormular kopf(*this);
    return kopf.isEqual(&other) && felder().gleich(*this, other, keinVertrag);
}

void qbFormularVB077::RefVertragJN(VERSICHERUNGSART art, unsigned char wert) {
    this->*VertragJN_Eintrag(art) = wert;
    if (wert == 1) return;
    this->*Gesellschaft_Eintrag(art) = "";
    this->*Beitrag_Eintrag(art) = "";
    this->*Seit_Eintrag(art) = "";
    this->*Ablauf_Eintrag(art) = "";
}

// Not 0 but 0xff for every contract, and each keeps its Art.
void qbFormularVB077::RefWeitereVertraegeJN(unsigned char wert) {
    WeitereVertraegeJN = wert;
    if (wert == 1) return;
    for (int i = 0; i < kVertraege; ++i)
        RefVertragJN(static_cast<VERSICHERUNGSART>(i), 0xff);
}

// Case-sensitive: "Sonstige" empties the other purpose too.
void qbFormularVB077::RefZweckLV(const RWCString& text) {
    ZweckLV = text;
    if (!ZweckLV.contains("sonstige")) SonstigerZweckLV = "";
}

void qbFormularVB077::RefVerbindungKreditJN(unsigned char wert) {
    VerbindungKreditJN = wert;
    if (wert == 1) return;
    Kreditinstitut = "";
    Verhandlungspartner = "";
}

void qbFormularVB077::RefBestandssicherJN(unsigned char wert) {
    BestandssicherJN = wert;
    if (wert != 1) BestandssicherBegruendung = "";
}

RWCString qbFormularVB077::pruefDaten(bool alle) const {
    RWCString fehlt;
    // Each check runs while nothing is missing yet, or always when everything is asked for.
    auto pruefe = [&](bool luecke, const char* zeile) {
        if ((fehlt.isNull() || alle) && luecke) fehlt += zeile;
    };
    const bool verheiratet = FamilienstandVN.contains("verheiratet");

    pruefe(FD.isNull(), "  Name der FD\n");
    pruefe(BD.isNull(), "  Name der BD\n");
    pruefe(WohnortVN.isNull(), "  Wohnort des VN\n");
    pruefe(TelefonVN.isNull(), "  Telefon des VN\n");
    pruefe(FamilienstandVN.isNull(), "  Familienstand des VN\n");
    pruefe(MtlEinkommenVN == 0, "  Mtl. Einkommen des VN\n");
    pruefe(BerufVN.isNull(), "  Beruf des VN\n");
    pruefe(verheiratet && BerufEhepartnerVN.isNull(), "  Beruf des Ehepartners des VN\n");
    pruefe(!BerufVN.contains("ohne Beruf") && ArbeitgeberVN.isNull(), "  Arbeitgeber des VN\n");
    pruefe(WeitereVertraegeJN == 0xff, "  Weitere Versicherungsverträge ja/nein\n"_cp1252);
    bool einVertrag = false;
    for (int i = 0; i < kVertraege; ++i)
        einVertrag = einVertrag || this->*VertragJN_Eintrag(i) == 1;
    pruefe(WeitereVertraegeJN == 1 && !einVertrag, "  Angaben zu weiteren Versicherungsverträgen\n"_cp1252);
    if (WeitereVertraegeJN == 1 && einVertrag)
        for (int i = 0; i < kVertraege; ++i) {
            const RWCString& art = this->*Art_Eintrag(i);
            if ((fehlt.isNull() || alle) && this->*VertragJN_Eintrag(i) == 1 && art.isNull())
                fehlt += "  Angaben zum Versicherungsvertrag \"" + art + "\"\n";
        }
    if (!fehlt.isNull()) fehlt.prepend("Seite 1:\n");
    const size_t endeSeite1 = fehlt.length();

    pruefe(ZweckLV.isNull(), "  Zweck der LV\n");
    pruefe(VerbindungKreditJN == 0xff, "  Verbindung mit Kredit ja/nein\n");
    pruefe(VerbindungKreditJN == 1 && Kreditinstitut.isNull(), "  Darlehensgeber / Kreditinstitut\n");
    pruefe(VerbindungKreditJN == 1 && Verhandlungspartner.isNull(),
           "  Verhandlungspartner bei Darlehensgeber / Kreditinstitut\n");
    pruefe(VCAuskunft.isNull(), "  VC-Auskunft\n");
    pruefe(BestandssicherJN == 0xff, "  Bestandssicher ja/nein\n");
    pruefe(BestandssicherJN == 1 && BestandssicherBegruendung.isNull(),
           "  Begründung Bestandssicherheit\n"_cp1252);
    if (AuslaendischerAntragstellerJN == 1) {
        pruefe(SeitWannInBRD.isNull(), "  Seit wann in der BRD\n");
        pruefe(DauerAufenthaltserlaubnis.isNull(), "  Dauer Aufenthaltserlaubnis\n");
        pruefe(verheiratet && BerufEhepartner.isNull(), "  Beruf Ehepartner\n");
        pruefe(verheiratet && NationalitaetEhepartner.isNull(), "  Nationalität Ehepartner\n"_cp1252);
    }
    pruefe(NameRechercheur.isNull(), "  Name Rechercheur\n");
    pruefe(VornameRechercheur.isNull(), "  Vorname Rechercheur\n");
    pruefe(FDBDAgenturRechercheur.isNull(), "  Agentur Rechercheur\n");
    if (!fehlt.isNull() && fehlt.length() > endeSeite1) fehlt.insert(endeSeite1, "\nSeite 2:\n");
    return fehlt;
}

bool qbFormularVB077::pruefDaten(unsigned char anzeigen, void* fenster, bool alle) const {
    RWCString text = pruefDaten(alle);
    if (text.isNull()) return true;
    text.prepend("Bitte ergänzen Sie folgende Angaben:\n\n"_cp1252);
    if (anzeigen) MessageBoxA(fenster, text.data(), " Fehler", MB_ICONERROR | MB_OK);
    return false;
}
