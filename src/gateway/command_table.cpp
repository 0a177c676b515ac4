#include "gateway/command_table.h"

#include <cstring>

#include "gateway/energies_command.h"
#include "gateway/newmark_command.h"
#include "gateway/residual_command.h"
#include "gateway/service_commands.h"
#include "gateway/version_command.h"
#include "handles/handle_commands.h"
#include "sparse/matrix_commands.h"

namespace quarn {

namespace {

/// In matching order.
constexpr CommandRow commands[] = {
    {"ismex", commandIsMex},
    {"residual", commandResidual},
    {"chandleset", commandChandleSet},
    {"chandleget", commandChandleGet},
    {"chandleclear", commandChandleClear},
    {"chandlediagnewmark", commandDiagNewmark},
    {"nlv1", commandNlv1},
    {"setsparse", commandSetSparse},
    {"c<-a'*b", commandProjectLeft},
    {"dtkt", commandDtkt},
    {"abc", commandTripleProduct},
    {"ta'*k*tb", commandTaKTb},
    {"directzr", commandDirectZr},
    {"igsm", commandIgsm},
    {"cvs", commandCvs},
    {"tbbp", commandTbbp},
    {"omp", commandOmp},
    {"version", commandVersion},
    {"energies", commandEnergies},
};

}  // namespace

const CommandRow* findCommand(const char* word) {
  for (const CommandRow& row : commands) {
    if (word[0] == row.word[0] && std::strcmp(word, row.word) == 0) return &row;
  }
  return nullptr;
}

}  // namespace quarn
