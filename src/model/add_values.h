#pragma once

#include <string>

#include "model/Dimension.h"
#include "runtime/file_steps.h"

namespace tavimor {

/// The file through which the function table passes while values are added: "FUNCTION" in the work directory.
std::string workFilePath(const Dimension& model);

/// Adds AddCount[v] values, 0 for now, behind the values of variable v and lays the function table out anew: the old
/// entries keep their grid points and the new positions are 0. A count of 0 changes nothing.
///
/// The table is written to the work file and read back with each axis d shortened by AddCount[d], the last count that
/// was added to that very axis, not only to v. Kept on purpose: after additions to two variables the second one reads
/// back with the first one's extent shortened (AddValues.ASecondVariableReadsBackWithTheFirstOneShortened).
///
/// Afterwards FileName names the work file, although that is deleted: a plain save goes there. A file of that name that
/// is there before is the user's, and is kept as "FUNCTION.1", or the next number that is free.
/// Errors: a RunTimeError where the work file cannot be written or read, PathFileAccess where its name is a link or no
/// regular file, SubscriptOutOfRange for a negative count, Overflow, OutOfMemory. On an error the model is as it was
/// and no work file is left.
void addValues(Dimension& model, Long v, FileSteps& steps = systemFileSteps());

}  // namespace tavimor
