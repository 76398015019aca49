#pragma once

namespace tessaly {

/// Answers a question on the command line, `--help` or `--version`, on standard output and ends the process
/// with status 0. Needs no display, so it is to be asked before the GUI application is made; everything else
/// on the command line is left to that.
void answerCommandLine(int argc, char** argv);

} // namespace tessaly
