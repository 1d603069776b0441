# SPDX-FileCopyrightText: 2026 The Zelvia authors
# SPDX-License-Identifier: GPL-3.0-or-later
# Completion of zelvia-strumenti for bash, which loads it when the command is typed. The actions and options are those
# that the command itself lists.

_zelvia_strumenti() {
  local word=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} command=${COMP_WORDS[0]}
  local folder=() action= i
  COMPREPLY=()
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --cartella) folder=("${COMP_WORDS[@]:i:2}") && i=$((i + 1)) ;;
      --diario | --pagina) i=$((i + 1)) ;;
      -*) ;;
      *) action=${action:-${COMP_WORDS[i]}} ;;
    esac
  done
  local words=
  case $previous in
    --formato) [ "$action" = libro ] && words="a4 a5 html" || words="csv splits jsonl ics" ;;
    --cartella | --da | secondo-posto | -o) mapfile -t COMPREPLY < <(compgen -f -- "$word") && return ;;
    --pagina) words="anno anni ripara giornale copie unisci importa esporta libro" ;;
    --diario) words=$("$command" "${folder[@]}" anni --tsv 2>/dev/null | tail -n +2 | cut -f 1) ;;
    *)
      case $word in
        -*) words=$("$command" --help 2>/dev/null | grep -oE '^  --[a-z]+') ;;
        *)
          case $action in
            "") words=$("$command" --help 2>/dev/null | sed -nE 's/^  ([a-z]+)( .*)?$/\1/p') ;;
            anno) words=$(($(date +%Y) + 1)) ;;
            controlla | ripara) words=$("$command" "${folder[@]}" anni --tsv 2>/dev/null | tail -n +2 | cut -f 1) ;;
            giornale) words="riprendi dimentica liste percorsi calendario" ;;
            copie) words="elenco confronta rimetti crea secondo-posto" ;;
            *) mapfile -t COMPREPLY < <(compgen -f -- "$word") && return ;;
          esac
          ;;
      esac
      case $action in
        importa) [[ $word != -* ]] || words+=" --tutti --in-moto --fuso --colonna" ;;
        esporta | libro) [[ $word != -* ]] || words+=" --formato -o" ;;
        copie) [[ $word != -* ]] || words+=" --da --nessuno" ;;
      esac
      [ "$action" != anno ] || [[ $word != -* ]] || words+=" --gare"
      ;;
  esac
  local IFS=$' \t\n'
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word")
}
complete -o filenames -F _zelvia_strumenti zelvia-strumenti
