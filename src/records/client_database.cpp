#include "records/client_database.h"

qint64 clientCount(const ProgramFolder& folder) { return RecordFile<ClientRec>(folder).count(); }
