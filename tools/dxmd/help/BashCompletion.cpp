#include "BashCompletion.h"

namespace dxmd_tool {

namespace {

const char* const kHead = R"(# Completes the command line of dxmd in bash. Made by "dxmd help --bash".

# For the program, each verb, and each kind that adds options to its verb: options, with what their value is behind "=",
# then what stands by its position, alternatives with "|" between them.
declare -gA _dxmd_grammar=(
)";

const char* const kFunctions = R"(
# Adds to COMPREPLY what WHAT, such as "KIND" or "json|csv", may be and begins with CURRENT.
_dxmd_offer() { # WHAT CURRENT
  local alternative
  local -a alternatives
  IFS='|' read -ra alternatives <<<"$1"
  for alternative in "${alternatives[@]}"; do
    case $alternative in
      VERB) alternative=$_dxmd_verbs ;;
      KIND) alternative=$_dxmd_kinds ;;
      FILE)
        mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -f -- "$2")
        compopt -o filenames 2>/dev/null
        continue
        ;;
      *[!A-Z]*) ;;
      *) continue ;; # a number or a name that only the user knows
    esac
    mapfile -t -O "${#COMPREPLY[@]}" COMPREPLY < <(compgen -W "$alternative" -- "$2")
  done
}

_dxmd() {
  local current=${COMP_WORDS[COMP_CWORD]} command=dxmd value='' word token i
  local -a grammar positions=()
  COMPREPLY=()
  read -ra grammar <<<"${_dxmd_grammar[dxmd]}"
  for ((i = 1; i < COMP_CWORD; ++i)); do
    word=${COMP_WORDS[i]}
    [[ $word != '=' ]] || continue # bash splits --option=value in three
    if [[ $value ]]; then
      value=''
    elif [[ $word == -?* ]]; then
      for token in "${grammar[@]}"; do
        [[ $token != "$word="* ]] || value=${token#*=}
      done
    elif [[ $command == dxmd && ${_dxmd_grammar[$word]:-} ]]; then
      command=$word
      read -ra grammar <<<"${_dxmd_grammar[$command]}"
    elif [[ $command != *' '* && ${_dxmd_grammar["$command KIND"]:-} && " $_dxmd_kinds " == *" $word "* ]]; then
      read -ra grammar <<<"${_dxmd_grammar["$command $word"]:-${_dxmd_grammar["$command KIND"]}}"
      command+=" $word"
    else
      positions+=("$word")
    fi
  done

  [[ $current != '=' ]] || current=''
  if [[ $value ]]; then
    _dxmd_offer "$value" "$current"
  elif [[ $current == -* ]]; then
    for token in "${grammar[@]}"; do
      [[ $token != -* ]] || COMPREPLY+=("${token%%=*}")
    done
    mapfile -t COMPREPLY < <(compgen -W "${COMPREPLY[*]}" -- "$current")
  else
    i=${#positions[@]}
    for token in "${grammar[@]}"; do
      [[ $token != -* ]] || continue
      if ((i == 0)) || [[ $token == *... ]]; then
        _dxmd_offer "${token%...}" "$current"
        break
      fi
      ((i -= 1))
    done
  fi
}

complete -F _dxmd dxmd
)";

std::string optionWords(const std::vector<GrammarOption>& options) {
  std::string words;
  for (const GrammarOption& option : options)
    for (const std::string& name : option.names)
      words += name + (option.argument.empty() ? "" : "=" + option.argument) + " ";
  return words;
}

/// What may stand behind the command: its options, and its positions. What is in no position by name is a file.
std::string entry(const std::string& path, const GrammarCommand& command, const char* commands) {
  std::string words = optionWords(command.options);
  std::string separator = *commands == '\0' ? "" : "|";
  words += commands;
  for (const GrammarPositional& positional : command.positionals) {
    const bool isKnown = positional.name == "VERB" || positional.name == "KIND";
    words += separator + (isKnown ? positional.name : "FILE") + (positional.repeats ? "..." : "");
    separator = " ";
  }
  return "  ['" + path + "']='" + words + "'\n";
}

std::string names(const std::vector<GrammarCommand>& commands) {
  std::string all;
  for (const GrammarCommand& command : commands) all += (all.empty() ? "" : " ") + command.name;
  return all;
}

}  // namespace

std::string bashCompletion(const GrammarCommand& program) {
  std::string script = kHead;
  std::string kinds;
  script += entry(program.name, program, "VERB");
  for (const GrammarCommand& verb : program.commands) {
    script += entry(verb.name, verb, verb.commands.empty() ? "" : "KIND");
    if (verb.commands.empty()) continue;
    kinds = names(verb.commands);
    const GrammarCommand* common = nullptr;
    for (const GrammarCommand& kind : verb.commands) {
      if (!kind.ownOptions(verb).empty())
        script += entry(verb.name + " " + kind.name, kind, "");
      else
        common = &kind;
    }
    if (common != nullptr) script += entry(verb.name + " KIND", *common, "");
  }
  script += ")\n_dxmd_verbs='" + names(program.commands) + "'\n_dxmd_kinds='" + kinds + "'\n";
  return script + kFunctions;
}

}  // namespace dxmd_tool
