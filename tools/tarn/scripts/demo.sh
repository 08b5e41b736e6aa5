#!/usr/bin/env bash
# The whole road offline with tarn, against the bundled SEFAZ simulator: an
# NFC-e and an NF-e issued from the bundled JSON notes, the NFC-e cancelled,
# and every file written checked by tarn validar.
#
#   tools/tarn/scripts/demo.sh [PASTA]     (default build/tarn-demo)
set -euo pipefail
cd "$(dirname "$0")/../../.."
tarn=build/tools/tarn/tarn
notes=build/tools/tarn/share/tarn/notas
out=${1:-build/tarn-demo}
rm -rf "$out"
mkdir -p "$out"

# Shows the command, quoting the words with spaces, then runs it.
step() {
    local shown="$" word
    for word in "$@"; do
        [[ $word == *" "* ]] && word="\"$word\""
        shown+=" $word"
    done
    printf '\n%s\n' "$shown"
    "$@"
}

# The simulator stays up for the whole road, so that it knows the notes it
# authorized when they are cancelled and queried.
"$tarn" simulador --pasta "$out/simulador" > "$out/simulador.txt" &
simulator=$!
trap 'kill "$simulator" 2>/dev/null || true; wait "$simulator" 2>/dev/null || true' EXIT
for _ in $(seq 100); do
    [ -s "$out/simulador/endereco" ] && break
    sleep 0.1
done
sim=(--sim-pasta "$out/simulador")
# The QR code's secret comes from a file, never from the command line.
printf 'DEMO0123456789ABCDEF0123456789AB' > "$out/csc"
chmod 600 "$out/csc"
qrcode=(--token 1 --csc-arquivo "$out/csc" --url-chave https://www.homologacao.nfce.fazenda.sp.gov.br/consulta)

cp "$notes/nfce-sp.json" "$notes/nfe-sp.json" "$out/"
step "$tarn" status --uf SP "${sim[@]}"
step "$tarn" emitir "$out/nfce-sp.json" "${sim[@]}" "${qrcode[@]}"
step "$tarn" emitir "$out/nfe-sp.json" "${sim[@]}"
step "$tarn" cancelar "$out/nfce-sp-nfeProc.xml" --justificativa "Venda desfeita a pedido do cliente" \
    --saida "$out/nfce-sp-cancelamento.xml" "${sim[@]}"
key=$(sed -n 's/.*<chNFe>\([0-9]\{44\}\)<\/chNFe>.*/\1/p' "$out/nfce-sp-nfeProc.xml" | head -1)
step "$tarn" consultar "$key" "${sim[@]}"
step "$tarn" validar "$out"/*.xml --csc-arquivo "$out/csc"
printf '\nArquivos em %s\n' "$out"
