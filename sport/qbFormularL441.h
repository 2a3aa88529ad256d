// qbFormularL441, "Erklaerung Flugsport": the flying-sports declaration, the largest of the sport forms. The
// stream keeps the Flags of each group together and the group's Texts behind them: kinds of aircraft (the
// names of the two free entries at SonstigeLuftfahrzeug1 and 2), licences, ratings and kinds of flight (the
// two free ratings named at SonstigeBerechtigung1 and 2), then competitions, flights abroad and accidents.
// One layout for every stored version, despite the late current one.
#pragma once

#include "core/qbFormularMakros.h"

// SegelflugzeugJN goes into XML under "SegelflugzeugJN;" and is read back under the key without the
// semicolon, so a tree of this form's own does not give it back. binaryStoreSize counts one byte more
// than the record holds (149 for 148); the surplus stands on the last row.
#define QB_FELDER_qbFormularL441(FELD)                                                                       \
    FELD(Flag, FlugzeugJN)                                                                                   \
    FELD(Flag, HubschrauberJN)                                                                               \
    FELD(Flag, SegelflugzeugJN, .xml("SegelflugzeugJN;").liesXml("SegelflugzeugJN"))                         \
    FELD(Flag, MotorseglerJN)                                                                                \
    FELD(Flag, ULAerodynamischJN)                                                                            \
    FELD(Flag, FreiballonJN)                                                                                 \
    FELD(Flag, ULGewichtskraftgesteuertJN)                                                                   \
    FELD(Flag, HaengegleiterJN)                                                                              \
    FELD(Flag, SprungfallschirmJN)                                                                           \
    FELD(Flag, GleitschirmJN)                                                                                \
    FELD(Flag, SonstigeLuftfahrzeug1JN)                                                                      \
    FELD(Flag, SonstigeLuftfahrzeug2JN)                                                                      \
    FELD(Flag, PPLaJN)                                                                                       \
    FELD(Flag, FreiballonfuehrerJN)                                                                          \
    FELD(Flag, PPLhJN)                                                                                       \
    FELD(Flag, GplJN)                                                                                        \
    FELD(Flag, PPLNationalJN)                                                                                \
    FELD(Flag, SplJN)                                                                                        \
    FELD(Flag, SonstigeLizenzenJN)                                                                           \
    FELD(Flag, InAusbildungJN)                                                                               \
    FELD(Flag, WeitereLizenzenJN)                                                                            \
    FELD(Flag, CPLaJN)                                                                                       \
    FELD(Flag, ATPLaJN)                                                                                      \
    FELD(Flag, CPLhJN)                                                                                       \
    FELD(Flag, ATPLhJN)                                                                                      \
    FELD(Flag, SonstigeLizenzJN)                                                                             \
    FELD(Flag, LuftfahrtscheinJN)                                                                            \
    FELD(Text, SonstigeLuftfahrzeug1)                                                                        \
    FELD(Text, SonstigeLuftfahrzeug2)                                                                        \
    FELD(Text, Spl)                                                                                          \
    FELD(Text, SonstigeLizenzenGueltigkeit)                                                                  \
    FELD(Text, SonstigeLizenzenArt)                                                                          \
    FELD(Text, SonstigeLizenzenAussteller)                                                                   \
    FELD(Text, AusbildungZeitpunkt)                                                                          \
    FELD(Text, AusbildungAngestrebteLizenz)                                                                  \
    FELD(Text, AusbildungBerechtigungen)                                                                     \
    FELD(Text, AusbildungAbschluss)                                                                          \
    FELD(Text, SonstigeLizenz)                                                                               \
    FELD(Text, ArtDerAuflagen)                                                                               \
    FELD(Flag, SichtflugJN)                                                                                  \
    FELD(Flag, InstrumentenflugJN)                                                                           \
    FELD(Flag, NachtflugJN)                                                                                  \
    FELD(Flag, PassagierflugJN)                                                                              \
    FELD(Flag, KunstflugJN)                                                                                  \
    FELD(Flag, StreuSpruehflugJN)                                                                            \
    FELD(Flag, FangschleppJN)                                                                                \
    FELD(Flag, WindenstartJN)                                                                                \
    FELD(Flag, CvfrJN)                                                                                       \
    FELD(Flag, LangstreckenflugJN)                                                                           \
    FELD(Flag, WolkenflugJN)                                                                                 \
    FELD(Flag, LehrberechtigungJN)                                                                           \
    FELD(Flag, WasserflugzeugJN)                                                                             \
    FELD(Flag, PruefberechtigungJN)                                                                          \
    FELD(Flag, SchleppberechtigungJN)                                                                        \
    FELD(Flag, SchleppstartJN)                                                                               \
    FELD(Flag, SonstigeBerechtigung1JN)                                                                      \
    FELD(Flag, SonstigeBerechtigung2JN)                                                                      \
    FELD(Flag, WettbewerbJN)                                                                                 \
    FELD(Flag, FlugAuslandJN)                                                                                \
    FELD(Flag, FlugunfallJN)                                                                                 \
    FELD(Text, SonstigeBerechtigung1)                                                                        \
    FELD(Text, SonstigeBerechtigung2)                                                                        \
    FELD(Text, FlugLuftsportgeraet)                                                                          \
    FELD(Text, FlugLuftsportdisziplin)                                                                       \
    FELD(Text, ArtNameVeranstaltung)                                                                         \
    FELD(Text, Veranstalter)                                                                                 \
    FELD(Text, FluglandKontinent)                                                                            \
    FELD(Text, NaehereAngabenUnfall, .groesseAbweichend(1))

class qbFormularL441 : public qbFormular {
    QB_FORMULAR(qbFormularL441, qbFormular, QB_FELDER_qbFormularL441)
};
