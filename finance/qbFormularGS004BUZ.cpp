#include "finance/qbFormularGS004BUZ.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularGS004BUZ, QB_FELDER_qbFormularGS004BUZ)
QB_FORMULAR_KONSTRUKTOR(qbFormularGS004BUZ)
QB_FORMULAR_SPEICHERN_NUR_DATEI(qbFormularGS004BUZ)
QB_FORMULAR_LADEN_NUR_DATEI(qbFormularGS004BUZ)
QB_FORMULAR_LOESCHE(qbFormularGS004BUZ)
QB_FORMULAR_UMWANDLUNG(qbFormularGS004BUZ, qbFormularGS004)

// In XML the two arrays stand last, one pass per index, Gewinn before Einkommen in each pass; the other
// fields in table order.
void qbFormularGS004BUZ::XMLgetDat(CQBXMLdata& knoten) const {
    knoten.clear(klassenName());
    CQBXMLdata kopf("");
    qbFormular::XMLgetDat(kopf);
    knoten.add(std::move(kopf));
    felder().xmlSchreibe(*this, knoten);
    felder().xmlSchreibeReihen(*this, knoten, 3, {"GewinnInLetztenJahren", "EinkommenInLetztenJahren"});
}

void qbFormularGS004BUZ::XMLputDat(CQBXMLdata& knoten) {
    if (knoten.Typ() != klassenName()) return;
    felder().xmlLies(*this, knoten);
    felder().xmlLiesReihen(*this, knoten, 3, {"GewinnInLetztenJahren", "EinkommenInLetztenJahren"});
    knoten.Typ(qbFormular::klassenName());
    qbFormular::XMLputDat(knoten);
    knoten.Typ(klassenName());
}
