#ifndef DATALOG_VIEWER_ASIDE_H
#define DATALOG_VIEWER_ASIDE_H

#include <functional>

/** Long work in a thread of its own, for windows to stay alive meanwhile. */
namespace Aside
{

/** Is told which part is done, and says whether to go on. */
typedef std::function<bool(double)> Watcher;
typedef std::function<void(const Watcher &)> Work;

/**
 * True once @p work is done; false once @p watcher said no. Work hears that from the watcher it
 * gets itself; until it asks there it goes on with nobody waiting, so it must own what it uses. The
 * end of the application waits for it.
 *
 * @p watcher is asked in the calling thread, where it may let events through. Work that is done at
 * once is not watched.
 */
bool run(const Work &work, const Watcher &watcher);

} // namespace Aside

#endif
