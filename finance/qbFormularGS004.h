// qbFormularGS004, "Finanzielle Risikopruefung": the financial questionnaire for every cover at once, the
// form of applications since 1999. Its three successors (qbFormularGS004BUZ, qbFormularGS004LV,
// qbFormularGS004UZ) are built from it by their conversion constructors. No XML of its own.
#pragma once

#include "core/qbFormularMakros.h"

// Read conditions of older records: IBU, EUZ and bVersBUZ to bVersRente came with the year 2000,
// BeschreibungNebenJob with 05.2002, the sports block with 10.2000, LehreJN to HandwerklichTeilzeit with
// 10.2002. A virtual stream carries LehreJN to HandwerklichTeilzeit out and never back: its records claim
// 05.2002. EidesstattlicheVersicherung and the four education answers start at 0, unlike KonkursJN.
#define QB_FELDER_qbFormularGS004(FELD)                                                                      \
    FELD(Flag, BUZ, .standard(0))                                                                            \
    FELD(Flag, IBU, .standard(0).liesAbJahr(2000))                                                           \
    FELD(Flag, EUZ, .standard(0).liesAbJahr(2000))                                                           \
    FELD(Flag, PRZ, .standard(0))                                                                            \
    FELD(Flag, LV, .standard(0))                                                                             \
    FELD(Flag, UZ, .standard(0))                                                                             \
    FELD(Flag, Rue, .standard(0))                                                                            \
    FELD(Flag, VersorgungsZusageJN)                                                                          \
    FELD(Double, HoeheVersorgungszusage)                                                                     \
    FELD(Text, Unternehmensgruendung)                                                                        \
    FELD(Text, UnternehmensZweck)                                                                            \
    FELD(Text, VermerkeDesVermittlerss)                                                                      \
    FELD(Text, SelbstaendigSeit)                                                                             \
    FELD(Text, StellungImBetrieb)                                                                            \
    FELD(Flag, PraktischTaetigJN)                                                                            \
    FELD(Flag, AufsichtsfuehrendJN)                                                                          \
    FELD(Int, AnzahlMitarbeiter)                                                                             \
    FELD(Text, TaetigkeitsBeschreibung)                                                                      \
    FELD(Text, Schulbildung)                                                                                 \
    FELD(Text, Berufsausbildung)                                                                             \
    FELD(Double, Nettoeinkommen)                                                                             \
    FELD(IntEigen, Jahre_0)                                                                                  \
    FELD(DoubleEigen, EinkommenInLetztenJahren_0)                                                            \
    FELD(IntEigen, Jahre_1)                                                                                  \
    FELD(DoubleEigen, EinkommenInLetztenJahren_1)                                                            \
    FELD(IntEigen, Jahre_2)                                                                                  \
    FELD(DoubleEigen, EinkommenInLetztenJahren_2)                                                            \
    FELD(Double, weitereEinkommen)                                                                           \
    FELD(TextKopie, BeschreibungNebenJob, .liesAb(200205))                                                   \
    FELD(Flag, Sozialversicherung, .standard(0))                                                             \
    FELD(Flag, berufsstaendischeVersorgung, .standard(0))                                                    \
    FELD(Flag, BeamtenVersorgung, .standard(0))                                                              \
    FELD(Flag, betrieblicheAltersversorgung, .standard(0))                                                   \
    FELD(Flag, keineAnsprueche, .standard(0))                                                                \
    FELD(Flag, bVersBUZ, .liesAbJahr(2000))                                                                  \
    FELD(Flag, bVersEUZ, .liesAbJahr(2000))                                                                  \
    FELD(Flag, bVersPRZ, .liesAbJahr(2000))                                                                  \
    FELD(Text, bVersGesellschaft, .liesAbJahr(2000))                                                         \
    FELD(Text, bVersRente, .liesAbJahr(2000))                                                                \
    FELD(Text, ZweckDesVertragsabschlusses)                                                                  \
    FELD(Text, sonstigeZwecke)                                                                               \
    FELD(Text, Objekt)                                                                                       \
    FELD(Double, UnternehmensUmsatz)                                                                         \
    FELD(Flag, KonkursJN)                                                                                    \
    FELD(Text, AngabenZuKonkurs)                                                                             \
    FELD(Flag, EidesstattlicheVersicherung, .standard(0))                                                    \
    FELD(Text, AngabenZuEidesstattlicherVersicherung)                                                        \
    FELD(Text, RechtsformDesUnternehmens)                                                                    \
    FELD(Text, ZweckUZ)                                                                                      \
    FELD(Text, sonstigeZweckeUZ)                                                                             \
    FELD(Text, VerpflichtungenBeiUnfallTodArt)                                                               \
    FELD(Double, VerpflichtungenBeiUnfallTodHoehe)                                                           \
    FELD(Text, GesellschaftUZ)                                                                               \
    FELD(Text, UZseit)                                                                                       \
    FELD(Long, UZSumme)                                                                                      \
    FELD(Text, GesellschaftLVUZ)                                                                             \
    FELD(Text, LVUZseit)                                                                                     \
    FELD(Long, LVUZSumme)                                                                                    \
    FELD(Text, GesellschaftBeantragteVers)                                                                   \
    FELD(Long, BeantragteVersSumme)                                                                          \
    FELD(Flag, SportJN, .liesAb(200010))                                                                     \
    FELD(Flag, Sport1Profi, .standard(0).liesAb(200010))                                                     \
    FELD(Flag, Sport1Amat, .standard(0).liesAb(200010))                                                      \
    FELD(Flag, Sport1Freizeit, .standard(0).liesAb(200010))                                                  \
    FELD(Flag, Sport2Profi, .standard(0).liesAb(200010))                                                     \
    FELD(Flag, Sport2Amat, .standard(0).liesAb(200010))                                                      \
    FELD(Flag, Sport2Freizeit, .standard(0).liesAb(200010))                                                  \
    FELD(Flag, Sport3Profi, .standard(0).liesAb(200010))                                                     \
    FELD(Flag, Sport3Amat, .standard(0).liesAb(200010))                                                      \
    FELD(Flag, Sport3Freizeit, .standard(0).liesAb(200010))                                                  \
    FELD(Text, SportArt1, .liesAb(200010))                                                                   \
    FELD(Text, SportArt2, .liesAb(200010))                                                                   \
    FELD(Text, SportArt3, .liesAb(200010))                                                                   \
    FELD(Text, ArtWettkampf, .liesAb(200010))                                                                \
    FELD(Flag, GefahrJN, .liesAb(200010))                                                                    \
    FELD(Text, Gefahr, .liesAb(200010))                                                                      \
    FELD(Flag, LehreJN, .standard(0).liesAb(200210).nurAusDatei())                                           \
    FELD(Text, Lehre, .liesAb(200210).nurAusDatei())                                                         \
    FELD(Flag, FachausbildungJN, .standard(0).liesAb(200210).nurAusDatei())                                  \
    FELD(Text, Fachausbildung, .liesAb(200210).nurAusDatei())                                                \
    FELD(Flag, MeisterbriefJN, .standard(0).liesAb(200210).nurAusDatei())                                    \
    FELD(Text, Meisterbrief, .liesAb(200210).nurAusDatei())                                                  \
    FELD(Flag, StudiumJN, .standard(0).liesAb(200210).nurAusDatei())                                         \
    FELD(Text, Studium, .liesAb(200210).nurAusDatei())                                                       \
    FELD(Flag, bVersBUZBeantragt, .standard(0).liesAb(200210).nurAusDatei())                                 \
    FELD(Flag, bVersEUZBeantragt, .standard(0).liesAb(200210).nurAusDatei())                                 \
    FELD(Flag, bVersPRZBeantragt, .standard(0).liesAb(200210).nurAusDatei())                                 \
    FELD(Text, TaetigAls, .liesAb(200210).nurAusDatei())                                                     \
    FELD(Flag, ExistenzgruenderJN, .liesAb(200210).nurAusDatei())                                            \
    FELD(Text, UnternehmenSeit, .liesAb(200210).nurAusDatei())                                               \
    FELD(Text, ProzentKaufmaennisch, .liesAb(200210).nurAusDatei())                                          \
    FELD(Text, ProzentHandwerklich, .liesAb(200210).nurAusDatei())                                           \
    FELD(Text, KaufmaennischVollzeit, .liesAb(200210).nurAusDatei())                                         \
    FELD(Text, KaufmaennischTeilzeit, .liesAb(200210).nurAusDatei())                                         \
    FELD(Text, HandwerklichVollzeit, .liesAb(200210).nurAusDatei())                                          \
    FELD(Text, HandwerklichTeilzeit, .liesAb(200210).nurAusDatei())

class qbFormularGS004 : public qbFormular {
    QB_FORMULAR_OHNE_XML(qbFormularGS004, qbFormular, QB_FELDER_qbFormularGS004)
    QB_REIHE(qbFormularGS004, Int, Jahre, 3)
    QB_REIHE(qbFormularGS004, Double, EinkommenInLetztenJahren, 3)

private:
    // The four education answers of a record before 10.2002, from the words in Berufsausbildung.
    void leiteAusbildungAb();
};
