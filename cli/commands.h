#pragma once

#include "cli/options.h"

namespace wordhawk {

// Every command prints its results on stdout, its messages on stderr, and returns the exit code.

int RunCheck(const GlobalOptions& global, const CheckOptions& options);
int RunSuggest(const GlobalOptions& global, const WordOptions& options);
int RunExplain(const GlobalOptions& global, const ExplainOptions& options);
int RunKey(const GlobalOptions& global, const WordOptions& options);
int RunAdd(const GlobalOptions& global, const AddOptions& options);
int RunRemove(const GlobalOptions& global, const WordOptions& options);
int RunForbid(const GlobalOptions& global, const ForbidOptions& options);
int RunImport(const GlobalOptions& global, const ImportOptions& options);
int RunDictionaries(const GlobalOptions& global, const std::string& activate);
int RunBuildDictionary(const BuildOptionsOfCommand& options);
int RunPipe(const GlobalOptions& global);

}  // namespace wordhawk
