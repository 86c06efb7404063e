#pragma once

class QTextStream;

namespace lumitra {

// lumitra --check-update: asks the service once. On an offered update prints
// the release notes and then the file's address on its own line; otherwise
// "up to date". Returns 0 then; 1 with one line on `err` when the service
// cannot be reached or refuses the address. Runs its own event loop.
int runUpdateCheckHeadless(QTextStream &out, QTextStream &err);

} // namespace lumitra
