#ifndef VELKERP_TARN_NFE_GERAR_URL_QRCODE_H
#define VELKERP_TARN_NFE_GERAR_URL_QRCODE_H

/*
 * The NFC-e of a point of sale in one call, for programs that cannot use the
 * C++ classes (C, Delphi, C#, Python, Java...). From a note as JSON text (the
 * protobuf JSON form of NotaFiscal) a function generates the document, writes
 * its unsigned infNFe element as text to a file, and gives the complete
 * consumer QR code address: the consultation page of the note's state and
 * environment followed by the QR string.
 *
 * The caller signs the infNFe it reads from the file (the digest in a QR code
 * of version 1.00 is the one that signature will hold, as long as that text is
 * what gets signed) and puts the address in infNFeSupl/qrCode.
 *
 * Arguments (none is kept nor freed by the library):
 *   nota_json       zero-terminated JSON text of the note.
 *   id_token        the number of the CSC: v1 takes its text (exactly 6
 *                   characters, e.g. "000001"), v2 the number (e.g. 1), which
 *                   is written in decimal without zeros in front.
 *   csc             zero-terminated CSC, the taxpayer's secret code: only
 *                   hashed, never kept nor reported.
 *   url             the caller's buffer for the address, or null to ask for
 *                   the size it needs.
 *   tamanho_url     in: the size of the buffer in bytes. Out: after result 0
 *                   with a buffer, the length of the address without its
 *                   terminating zero; after result 0 without a buffer and
 *                   after result 4, the size needed, terminator included.
 *   arquivo_infnfe  path of the file that receives the infNFe text, replacing
 *                   whatever it held.
 *   versao_layout   v1: 1 for layout 3.10, 2 for layout 4.00; v2: only 2.
 *
 * v1 makes a QR code of version 1.00, v2 of version 2.00. Every call runs the
 * whole process, the file included: pass a buffer at once (1024 bytes hold
 * any address) and repeat only after result 4.
 *
 * No failure text leaves the functions and nothing is logged. The file is
 * written before the QR code is made, so it stays after results 3 and 4; after
 * result 5 there is no usable file. Calls hold no state and may run in
 * parallel on different files.
 */

#include <stdint.h>

#if defined(__GNUC__)
#define VELKERP_TARN_NFE_API __attribute__((visibility("default")))
#else
#define VELKERP_TARN_NFE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Results of both functions. */
enum {
    /* Done: the address stands in url, or without url its size. */
    VELKERP_TARN_NFE_SUCESSO = 0,
    /* A required argument is missing: nota_json, csc or tamanho_url null, an
       empty (or null) token text, or a versao_layout not accepted. */
    VELKERP_TARN_NFE_ARGUMENTO_AUSENTE = 1,
    /* The JSON text is no NotaFiscal: malformed, an unknown field, a wrong
       type or enumeration name, or a text above 4 MiB. */
    VELKERP_TARN_NFE_JSON_INVALIDO = 2,
    /* The QR code could not be made: a token of the wrong length, an empty
       CSC, a state without a consultation page, or a document whose values
       the QR code cannot carry. */
    VELKERP_TARN_NFE_QRCODE_FALHOU = 3,
    /* The buffer is too small: tamanho_url holds the size needed. */
    VELKERP_TARN_NFE_BUFFER_PEQUENO = 4,
    /* No document text could be written: the note was refused by the
       generation, or the file could not be opened. */
    VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO = 5
};

VELKERP_TARN_NFE_API int32_t velkerp_tarn_nfe_gerar_url_qrcode_v1(char const* nota_json, char const* id_token,
                                                                  char const* csc, char* url, uint32_t* tamanho_url,
                                                                  char const* arquivo_infnfe, int32_t versao_layout);

VELKERP_TARN_NFE_API int32_t velkerp_tarn_nfe_gerar_url_qrcode_v2(char const* nota_json, int32_t id_token,
                                                                  char const* csc, char* url, uint32_t* tamanho_url,
                                                                  char const* arquivo_infnfe, int32_t versao_layout);

#ifdef __cplusplus
}
#endif

#endif
