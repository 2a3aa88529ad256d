#include "health/qbFormularL244.h"

#include "core/qbFormularDefinition.h"

QB_FORMULAR_IDENTITAET(qbFormularL244, QB_FELDER_qbFormularL244)
QB_FORMULAR_KONSTRUKTOR(qbFormularL244)
QB_FORMULAR_SPEICHERN(qbFormularL244)
QB_FORMULAR_LADEN(qbFormularL244)
QB_FORMULAR_XML(qbFormularL244)
QB_FORMULAR_LOESCHE(qbFormularL244)

// The size has always counted 244 fixed bytes for the own fields, 17 more than the 227 they take.
RWspace qbFormularL244::binaryStoreSize() const {
    return Basisklasse::binaryStoreSize() + felder().groesse(*this) + 17;
}
