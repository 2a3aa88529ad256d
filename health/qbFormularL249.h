// qbFormularL249, "Erklaerung Allergien": the allergies declaration.
#pragma once

#include "health/qbFormularAllgGesu.h"

// ZigarettenJN and Zigaretten came with 05.2002; the records of "10.1999" and "01.2000" are read by the
// early layout in the .cpp. The constructor has always passed TiereJN over; it starts at 0 here. The own
// ArbeitsplatzwechselJN hides the common one of the same name; both travel in the record.
#define QB_FELDER_qbFormularL249(FELD)                                                                       \
    FELD(Flag, AsthmaJN)                                                                                     \
    FELD(Text, Asthma)                                                                                       \
    FELD(Flag, SpastischeBronchitisJN)                                                                       \
    FELD(Text, SpastischeBronchitis)                                                                         \
    FELD(Flag, ChronischeBronchitisJN)                                                                       \
    FELD(Text, ChronischeBronchitis)                                                                         \
    FELD(Flag, HeuschnupfenJN)                                                                               \
    FELD(Text, Heuschnupfen)                                                                                 \
    FELD(Flag, NahrungsmittelJN)                                                                             \
    FELD(Text, Nahrungsmittel)                                                                               \
    FELD(Flag, InsektensticheJN)                                                                             \
    FELD(Text, Insektenstiche)                                                                               \
    FELD(Flag, ArbeitsstoffeJN)                                                                              \
    FELD(Text, Arbeitsstoffe)                                                                                \
    FELD(Flag, SonstigeUeberempfindlichkeitenJN)                                                             \
    FELD(Text, SonstigeUeberempfindlichkeiten)                                                               \
    FELD(Flag, EkzemJN)                                                                                      \
    FELD(Text, Ekzem)                                                                                        \
    FELD(Flag, NesselsuchtJN)                                                                                \
    FELD(Text, Nesselsucht)                                                                                  \
    FELD(Flag, NeurodermitisJN)                                                                              \
    FELD(Text, Neurodermitis)                                                                                \
    FELD(Flag, GesamterKoerperJN)                                                                            \
    FELD(Flag, HaendeJN)                                                                                     \
    FELD(Flag, GesichtJN)                                                                                    \
    FELD(Flag, SonstigeKoerperstellenJN)                                                                     \
    FELD(Text, SonstigeKoerperstellen)                                                                       \
    FELD(Flag, WeitereHauterkrankungenJN)                                                                    \
    FELD(Text, WeitereHauterkrankungen)                                                                      \
    FELD(Flag, ZigarettenJN, .liesAb(200205))                                                                \
    FELD(Text, Zigaretten, .liesAb(200205))                                                                  \
    FELD(Flag, ErkrankungenFamilieJN)                                                                        \
    FELD(Text, ErkrankungenFamilie)                                                                          \
    FELD(Flag, HausarbeitJN)                                                                                 \
    FELD(Flag, ArbeitJN)                                                                                     \
    FELD(Flag, TiereJN, .standard(0))                                                                        \
    FELD(Flag, AnstrengungenJN)                                                                              \
    FELD(Flag, LebensmittelJN)                                                                               \
    FELD(Flag, AndereGelegenheitenJN)                                                                        \
    FELD(Text, AndereGelegenheiten)                                                                          \
    FELD(Flag, AllergietestJN)                                                                               \
    FELD(Text, Allergietest)                                                                                 \
    FELD(Text, ArztAllergien)                                                                                \
    FELD(Text, Medikamente)                                                                                  \
    FELD(Flag, HyposensibilisierungJN)                                                                       \
    FELD(Text, Hyposensibilisierung)                                                                         \
    FELD(Flag, HyposensibilisierungGeplantJN)                                                                \
    FELD(Text, HyposensibilisierungGeplant)                                                                  \
    FELD(Flag, ArbeitsplatzwechselJN)                                                                        \
    FELD(Text, Arbeitsplatzwechsel)                                                                          \
    FELD(Text, AktuelleMedikamente)

class qbFormularL249 : public qbFormularAllgGesu {
    QB_FORMULAR(qbFormularL249, qbFormularAllgGesu, QB_FELDER_qbFormularL249)

    QB_GESUNDHEIT_FRUEHES_LAYOUT
};
