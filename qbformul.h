// qbformul: the form data of the field-sales application. One header for every public class,
// the stand-ins of the platform libraries included.
#pragma once

// Tools.h++ subset
#include "rw/defs.h"
#include "rw/cstring.h"
#include "rw/rwfile.h"
#include "rw/vstream.h"
#include "rw/bstream.h"
#include "rw/pstream.h"
#include "rw/collect.h"
#include "rw/rwstore.h"
#include "rw/factory.h"
#include "rw/dlistcol.h"
#include "rw/tvslist.h"
#include "rw/tphasht.h"
#include "rw/rwerr.h"
#include "rw/toolerr.h"
#include "rw/message.h"
#include "rw/locale.h"
#include "rw/rwdate.h"

// qbAllg, qbNLDat, Windows
#include "qballg/cp1252.h"
#include "qballg/CQBXMLdata.h"
#include "qballg/QBvar.h"
#include "qballg/qbAllgFunktionen.h"
#include "qballg/qbPerson.h"
#include "nldat/qbNldUserID.h"
#include <windows.h>

// The form core
#include "core/qbFormular.h"
#include "core/qbFormularListe.h"
#include "core/qbKlassen.h"

// Every form class: health, sport and stay-abroad, financial, pension and clerical forms.
#include "qbformul_formulare.h"
