#include "sport/qbFormularL036.h"

#include "core/qbFormularDefinition.h"

#include <cstdlib>

QB_FORMULAR_ROUTINE(qbFormularL036, QB_FELDER_qbFormularL036)

// An empty Land on this side matches every Land.
int qbFormularL036::operator==(const qbFormularL036& other) const {
    if (DruckstueckNummer != other.DruckstueckNummer) return 0;
    if (PersonenKennung != other.PersonenKennung) return 0;
    if (!Land.isNull() && Land != other.Land) return 0;
    return Index == other.Index;
}

// An empty Land on the other side matches every Land: the list's probe of a search without a country
// finds the first stay of that person and Index.
RWBoolean qbFormularL036::isEqual(const RWCollectable* other) const {
    const qbFormular& form = static_cast<const qbFormular&>(*other);
    if (DruckstueckNummer != form.RefDruckstueckNummer()) return 0;
    if (PersonenKennung != form.RefPersonenKennung()) return 0;
    // A form of another class holds no stay of its own: it compares as a new L036, with an empty Land and
    // Index 0.
    const qbFormularL036* l036 = dynamic_cast<const qbFormularL036*>(other);
    const RWCString land = l036 ? l036->Land : RWCString();
    if (!land.isNull() && Land != land) return 0;
    return Index == (l036 ? l036->Index : 0);
}

static void qbSondeAuslandsaufenthalt(qbFormular& sonde, const RWCString& land, const RWCString& index) {
    qbFormularL036& l036 = static_cast<qbFormularL036&>(sonde);
    l036.RefLand(land);
    l036.RefIndex(std::atoi(index.data()));
}

const qbSuchregel qbSucheAuslandsaufenthalt = {&qbSondeAuslandsaufenthalt, true, true, nullptr};
