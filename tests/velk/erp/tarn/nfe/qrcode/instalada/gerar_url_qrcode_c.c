/*
 * A point-of-sale program in plain C against the installed library: every
 * result of the two exported functions, the buffer protocol, the file. Built
 * by gerar_url_qrcode_test.py with gcc alone, through pkg-config.
 *
 *   gerar_url_qrcode_c cases <note.json> <folder>
 *       runs the table once; prints "url <label> <address>" for the calls
 *       that make one, so that the driver checks them against the formula.
 *   gerar_url_qrcode_c repeat <count> <note.json> <folder>
 *       runs the table over and over, <count> calls in all (for the
 *       sanitizers: no leak, no bad access on any road).
 */
#include <velk/erp/tarn/nfe/qrcode/gerar_url_qrcode.h>

#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum json_kind { NOTE, NO_JSON, MALFORMED, UNKNOWN_FIELD, REFUSED_NOTE };
enum buffer_kind { ROOMY, NO_BUFFER, NO_SIZE };
enum path_kind { GOOD_PATH, NO_PATH, UNWRITABLE };
enum file_check { FILE_IGNORED, FILE_WRITTEN, FILE_ABSENT };

struct call_case {
    char const* label;
    int function; /* 1 or 2 */
    enum json_kind json;
    char const* token_v1;
    int32_t token_v2;
    char const* csc;
    enum buffer_kind buffer;
    enum path_kind path;
    int32_t layout;
    int32_t expected;
    enum file_check file;
    int print; /* the address goes to the driver */
};

#define CSC "0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C"

static struct call_case const cases[] = {
    /* Good calls: both layouts of v1, v2 with the tokens at the edges. */
    {"v1-4.00", 1, NOTE, "000001", 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_SUCESSO, FILE_WRITTEN, 1},
    {"v1-3.10", 1, NOTE, "000001", 0, CSC, ROOMY, GOOD_PATH, 1, VELKERP_TARN_NFE_SUCESSO, FILE_WRITTEN, 1},
    {"v2-1", 2, NOTE, NULL, 1, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_SUCESSO, FILE_WRITTEN, 1},
    {"v2-0", 2, NOTE, NULL, 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_SUCESSO, FILE_WRITTEN, 1},
    {"v2-999999", 2, NOTE, NULL, 999999, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_SUCESSO, FILE_WRITTEN, 1},
    /* Tokens the QR code cannot carry: the file is written all the same. */
    {"v2 token of 7 digits", 2, NOTE, NULL, 1234567, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_QRCODE_FALHOU,
     FILE_WRITTEN, 0},
    {"v2 negative token", 2, NOTE, NULL, -12345, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_QRCODE_FALHOU,
     FILE_WRITTEN, 0},
    {"v2 token INT32_MIN", 2, NOTE, NULL, INT32_MIN, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_QRCODE_FALHOU,
     FILE_WRITTEN, 0},
    {"v1 token of 5 characters", 1, NOTE, "12345", 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_QRCODE_FALHOU,
     FILE_WRITTEN, 0},
    {"v1 token of 7 characters", 1, NOTE, "1234567", 0, CSC, ROOMY, GOOD_PATH, 1, VELKERP_TARN_NFE_QRCODE_FALHOU,
     FILE_WRITTEN, 0},
    {"v1 empty CSC", 1, NOTE, "000001", 0, "", ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_QRCODE_FALHOU, FILE_WRITTEN, 0},
    {"v2 empty CSC", 2, NOTE, NULL, 1, "", ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_QRCODE_FALHOU, FILE_WRITTEN, 0},
    /* Missing arguments and layouts not accepted. */
    {"v1 empty token", 1, NOTE, "", 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT, 0},
    {"v1 null token", 1, NOTE, NULL, 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT, 0},
    {"v1 null JSON", 1, NO_JSON, "000001", 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE,
     FILE_ABSENT, 0},
    {"v2 null JSON", 2, NO_JSON, NULL, 1, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT,
     0},
    {"v1 null CSC", 1, NOTE, "000001", 0, NULL, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT,
     0},
    {"v2 null CSC", 2, NOTE, NULL, 1, NULL, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT, 0},
    {"v1 null size", 1, NOTE, "000001", 0, CSC, NO_SIZE, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE,
     FILE_ABSENT, 0},
    {"v2 null size", 2, NOTE, NULL, 1, CSC, NO_SIZE, GOOD_PATH, 2, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT,
     0},
    {"v1 layout 0", 1, NOTE, "000001", 0, CSC, ROOMY, GOOD_PATH, 0, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT,
     0},
    {"v1 layout 3", 1, NOTE, "000001", 0, CSC, ROOMY, GOOD_PATH, 3, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT,
     0},
    {"v2 layout 1, which v1 takes", 2, NOTE, NULL, 1, CSC, ROOMY, GOOD_PATH, 1, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE,
     FILE_ABSENT, 0},
    {"v2 layout -1", 2, NOTE, NULL, 1, CSC, ROOMY, GOOD_PATH, -1, VELKERP_TARN_NFE_ARGUMENTO_AUSENTE, FILE_ABSENT, 0},
    /* JSON that is no note, and a note the generation refuses. */
    {"v1 malformed JSON", 1, MALFORMED, "000001", 0, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_JSON_INVALIDO,
     FILE_ABSENT, 0},
    {"v2 malformed JSON", 2, MALFORMED, NULL, 1, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_JSON_INVALIDO,
     FILE_ABSENT, 0},
    {"v2 unknown field", 2, UNKNOWN_FIELD, NULL, 1, CSC, ROOMY, GOOD_PATH, 2, VELKERP_TARN_NFE_JSON_INVALIDO,
     FILE_ABSENT, 0},
    {"v1 refused note", 1, REFUSED_NOTE, "000001", 0, CSC, ROOMY, GOOD_PATH, 1, VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO,
     FILE_ABSENT, 0},
    /* No file, although the QR code would have been made. */
    {"v1 unwritable path", 1, NOTE, "000001", 0, CSC, ROOMY, UNWRITABLE, 2, VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO,
     FILE_IGNORED, 0},
    {"v2 unwritable path", 2, NOTE, NULL, 1, CSC, ROOMY, UNWRITABLE, 2, VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO,
     FILE_IGNORED, 0},
    {"v2 null path", 2, NOTE, NULL, 1, CSC, ROOMY, NO_PATH, 2, VELKERP_TARN_NFE_ARQUIVO_NAO_ESCRITO, FILE_IGNORED, 0},
    /* Without a buffer: the size it needs. */
    {"v1 size query", 1, NOTE, "000001", 0, CSC, NO_BUFFER, GOOD_PATH, 2, VELKERP_TARN_NFE_SUCESSO, FILE_WRITTEN, 0},
};

enum { CASE_COUNT = sizeof cases / sizeof cases[0] };

static char* note_text;
static char infnfe_path[4096];
static char unwritable_path[4096];
static int failures;

static char* read_file(char const* path, size_t* size)
{
    FILE* file = fopen(path, "rb");
    char* text;
    long length;
    if (file == NULL) {
        return NULL;
    }
    fseek(file, 0, SEEK_END);
    length = ftell(file);
    fseek(file, 0, SEEK_SET);
    text = malloc((size_t)length + 1);
    if (text == NULL || fread(text, 1, (size_t)length, file) != (size_t)length) {
        fclose(file);
        free(text);
        return NULL;
    }
    fclose(file);
    text[length] = '\0';
    if (size != NULL) {
        *size = (size_t)length;
    }
    return text;
}

static void fail(char const* label, char const* what, long expected, long got)
{
    fprintf(stderr, "FAILED %s: %s: expected %ld, got %ld\n", label, what, expected, got);
    ++failures;
}

static int32_t call(struct call_case const* c, char* url, uint32_t* size)
{
    char const* json = c->json == NOTE            ? note_text
                       : c->json == MALFORMED     ? "{\"numero\": 1,"
                       : c->json == UNKNOWN_FIELD ? "{\"numero\": 1, \"campo_que_nao_existe\": 2}"
                       : c->json == REFUSED_NOTE  ? "{}"
                                                  : NULL;
    char const* path = c->path == GOOD_PATH ? infnfe_path : c->path == UNWRITABLE ? unwritable_path : NULL;
    uint32_t* size_argument = c->buffer == NO_SIZE ? NULL : size;
    char* url_argument = c->buffer == NO_BUFFER ? NULL : url;
    if (c->function == 1) {
        return velkerp_tarn_nfe_gerar_url_qrcode_v1(json, c->token_v1, c->csc, url_argument, size_argument, path,
                                                    c->layout);
    }
    return velkerp_tarn_nfe_gerar_url_qrcode_v2(json, c->token_v2, c->csc, url_argument, size_argument, path,
                                                c->layout);
}

/* The file holds the infNFe element alone: no declaration, no NFe. */
static void check_file(char const* label, enum file_check expected)
{
    size_t size = 0;
    char* text = read_file(infnfe_path, &size);
    static char const end[] = "</infNFe>";
    if (expected == FILE_ABSENT && text != NULL) {
        fail(label, "file written", 0, 1);
    }
    if (expected == FILE_WRITTEN) {
        if (text == NULL) {
            fail(label, "file written", 1, 0);
            return;
        }
        if (strncmp(text, "<infNFe ", 8) != 0 || size < sizeof end ||
            strcmp(text + size - (sizeof end - 1), end) != 0 || strstr(text, "<?xml") != NULL ||
            strstr(text, "<NFe") != NULL) {
            fail(label, "file is the infNFe element alone", 1, 0);
        }
    }
    free(text);
}

static void run_case(struct call_case const* c, int print)
{
    char url[1024];
    uint32_t size = sizeof url;
    int32_t result;
    memset(url, '#', sizeof url);
    remove(infnfe_path);
    result = call(c, url, &size);
    if (result != c->expected) {
        fail(c->label, "result", c->expected, result);
        return;
    }
    if (c->file != FILE_IGNORED) {
        check_file(c->label, c->file);
    }
    if (result != VELKERP_TARN_NFE_SUCESSO) {
        if (size != sizeof url) {
            fail(c->label, "size left alone", (long)sizeof url, (long)size);
        }
        return;
    }
    if (c->buffer == NO_BUFFER) {
        if (size < 100 || url[0] != '#') {
            fail(c->label, "size with the terminator, buffer untouched", 1, 0);
        }
        return;
    }
    if (strlen(url) != size) {
        fail(c->label, "length without the terminator", (long)strlen(url), (long)size);
    }
    if (print) {
        printf("url %s %s\n", c->label, url);
    }
}

/* The two calls of the C idiom, and the buffer one byte short of them. */
static void buffer_protocol(int function)
{
    char const* label = function == 1 ? "v1 buffer protocol" : "v2 buffer protocol";
    struct call_case c = cases[function == 1 ? 0 : 2];
    char* url;
    uint32_t needed = 0;
    uint32_t size;
    int32_t result;

    c.buffer = NO_BUFFER;
    result = call(&c, NULL, &needed);
    if (result != VELKERP_TARN_NFE_SUCESSO) {
        fail(label, "size query", VELKERP_TARN_NFE_SUCESSO, result);
        return;
    }
    c.buffer = ROOMY;
    url = malloc(needed);
    /* n bytes for a text of n characters: one short of its terminator. */
    size = needed - 1;
    memset(url, '#', needed);
    result = call(&c, url, &size);
    if (result != VELKERP_TARN_NFE_BUFFER_PEQUENO || size != needed || url[0] != '#') {
        fail(label, "one byte short", VELKERP_TARN_NFE_BUFFER_PEQUENO, result);
        fail(label, "size needed", (long)needed, (long)size);
    }
    /* With the size it reported, the address and its length. */
    result = call(&c, url, &size);
    if (result != VELKERP_TARN_NFE_SUCESSO || size != needed - 1 || strlen(url) != needed - 1) {
        fail(label, "exact buffer", VELKERP_TARN_NFE_SUCESSO, result);
        fail(label, "length", (long)needed - 1, (long)size);
    }
    /* A buffer of no size at all. */
    size = 0;
    result = call(&c, url, &size);
    if (result != VELKERP_TARN_NFE_BUFFER_PEQUENO || size != needed) {
        fail(label, "empty buffer", VELKERP_TARN_NFE_BUFFER_PEQUENO, result);
    }
    free(url);
}

int main(int argc, char** argv)
{
    int repeat = argc == 5 && strcmp(argv[1], "repeat") == 0;
    long count = repeat ? strtol(argv[2], NULL, 10) : 0;
    char const* note_path = argv[repeat ? 3 : 2];
    char const* folder = argv[repeat ? 4 : 3];
    long call_number;

    if (!(repeat || (argc == 4 && strcmp(argv[1], "cases") == 0))) {
        fprintf(stderr, "usage: %s cases <note.json> <folder> | repeat <count> <note.json> <folder>\n", argv[0]);
        return 2;
    }
    note_text = read_file(note_path, NULL);
    if (note_text == NULL) {
        fprintf(stderr, "cannot read %s\n", note_path);
        return 2;
    }
    snprintf(infnfe_path, sizeof infnfe_path, "%s/infNFe.xml", folder);
    snprintf(unwritable_path, sizeof unwritable_path, "%s/no-such-folder/infNFe.xml", folder);

    if (repeat) {
        for (call_number = 0; call_number < count && failures == 0; ++call_number) {
            run_case(&cases[call_number % CASE_COUNT], 0);
        }
    } else {
        int i;
        for (i = 0; i < CASE_COUNT; ++i) {
            run_case(&cases[i], cases[i].print);
        }
        buffer_protocol(1);
        buffer_protocol(2);
    }
    free(note_text);
    if (failures != 0) {
        fprintf(stderr, "%d failure(s)\n", failures);
        return 1;
    }
    return 0;
}
