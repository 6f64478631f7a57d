#pragma once

namespace tavimor {

/// Whether the print system took the job that this thread last handed to it. The toolkit hands a document to CUPS
/// without looking at the answer; elsewhere a painter's own result says enough, and this is true.
bool queueTookLastJob();

}  // namespace tavimor
