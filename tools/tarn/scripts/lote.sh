#!/usr/bin/env bash
# Issues a batch of N NFC-e against the bundled simulator with tarn, to see
# its throughput and that the process does not grow over the batch:
#
#   tools/tarn/scripts/lote.sh [N [JOBS]]      (default 1000 notes, 2 jobs)
#
# The notes are the bundled NFC-e with the numbers 1001 to 1000+N, each with
# its access key and check digit, written into a temporary folder.
set -euo pipefail
cd "$(dirname "$0")/../../.."
count=${1:-1000}
jobs=${2:-2}
tarn=build/tools/tarn/tarn
note=tools/tarn/data/notas/nfce-sp.json
folder=$(mktemp -d "${TMPDIR:-/tmp}/tarn-lote-XXXXXX")
trap 'rm -rf "$folder"' EXIT

key=$(sed -n 's/.*"chave_acesso": "\([0-9]\{44\}\)".*/\1/p' "$note")
for ((i = 1; i <= count; i++)); do
    number=$((1000 + i))
    # Key: the note's first 25 digits, the number in 9, the last 9 before the
    # check digit; the digit by modulo 11, weights 2 to 9 from the right.
    first=$(printf '%s%09d%s' "${key:0:25}" "$number" "${key:34:9}")
    digit=$(awk -v k="$first" 'BEGIN { s = 0; w = 2; for (i = length(k); i > 0; i--) { s += substr(k, i, 1) * w; w = w == 9 ? 2 : w + 1 } r = s % 11; print (r < 2 ? 0 : 11 - r) }')
    sed -e "s/\"numero\": 3,/\"numero\": $number,/" -e "s/$key/$first$digit/" "$note" > "$folder/nota-$number.json"
done
echo "== $count notas em $folder, --jobs $jobs"
"$tarn" emitir "$folder"/nota-*.json --sim --jobs "$jobs" --json > "$folder/resultado.json" || status=$?
sed -n '/"resumo"/,$p' "$folder/resultado.json"
exit "${status:-0}"
