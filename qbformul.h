// qbformul: the form data of the field-sales application. One header for every public class,
// the stand-ins of the platform libraries included.
#pragma once

// Tools.h++ subset
#include "rw/defs.h"
#include "rw/cstring.h"
#include "rw/rwfile.h"
#include "rw/vstream.h"
#include "rw/bstream.h"
#include "rw/collect.h"
#include "rw/rwstore.h"
#include "rw/factory.h"
#include "rw/dlistcol.h"
#include "rw/tvslist.h"
#include "rw/tphasht.h"
#include "rw/rwerr.h"
#include "rw/toolerr.h"
#include "rw/message.h"
