#include <cstdio>
#include <exception>

#include "run/check_file.h"
#include "run/standard_streams.h"
#include "run/system_text.h"
#include "ui/desktop_program.h"

int main(int argc, char** argv) {
  quorvane::PrepareStandardStreams();
  try {
    return quorvane::RunDesktopProgram(quorvane::ProgramArguments(argc, argv));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "Quorvane Error: %s\n", failure.what());
    return static_cast<int>(quorvane::CheckStatus::NotDone);
  }
}
