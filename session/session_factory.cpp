// Kept apart from the sessions themselves: only programs that call the
// factories need the engines' entries at link time.
#include "engine_entries.h"
#include "engine_inproc_session.h"
#include "engine_proc_session.h"
#include "engine_session.h"

#include <QtGlobal>

namespace {

bool childProcessesWanted()
{
    return qEnvironmentVariable("ZUVO_GUI_INPROC") == QLatin1String("0");
}

} // namespace

EngineSession* createEngineSession(QObject* parent)
{
    if (childProcessesWanted())
        return new EngineProcSession(parent);
    return new EngineInProcSession(&zuvo_engine_main);
}

EngineSession* createPlayerSession(QObject* parent)
{
    if (childProcessesWanted())
        return new EngineProcSession(parent);
    return new EngineInProcSession(&zuvo_player_main);
}
