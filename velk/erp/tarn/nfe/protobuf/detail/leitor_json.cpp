#include <velk/erp/tarn/nfe/protobuf/detail/leitor_json.hpp>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace velk::erp::inline v4::tarn::nfe::protobuf::detail {

namespace {

// The binary form's fixed-width numbers are little-endian, as they are in
// memory here.
static_assert(std::endian::native == std::endian::little);

using google::protobuf::Descriptor;
using google::protobuf::FieldDescriptor;
using google::protobuf::Message;
using campo_lido = leitor_json::campo;
using tipo_lido = leitor_json::tipo;

constexpr std::array<std::string_view, 9> embrulhos = {
    "google.protobuf.DoubleValue", "google.protobuf.FloatValue",  "google.protobuf.Int64Value",
    "google.protobuf.UInt64Value", "google.protobuf.Int32Value",  "google.protobuf.UInt32Value",
    "google.protobuf.BoolValue",   "google.protobuf.StringValue", "google.protobuf.BytesValue",
};

// The bytes the loops over whitespace and over the inside of a string stop
// at, by table: most of a note's text is indentation and plain ASCII.
enum classe_byte : unsigned char { espaco_em_branco = 1, atencao_no_texto = 2 };

constexpr std::array<unsigned char, 256> fazer_classes()
{
    std::array<unsigned char, 256> classes{};
    for (unsigned char c : {' ', '\t', '\n', '\r', '\v', '\f'}) {
        classes[c] = espaco_em_branco;
    }
    classes['"'] = atencao_no_texto;
    classes['\''] = atencao_no_texto;
    classes['\\'] = atencao_no_texto;
    for (int c = 0x80; c < 0x100; ++c) {
        classes[static_cast<std::size_t>(c)] = atencao_no_texto;
    }
    return classes;
}

constexpr std::array<unsigned char, 256> classes = fazer_classes();

bool espaco(char c)
{
    return classes[static_cast<unsigned char>(c)] == espaco_em_branco;
}

// The first byte at or after `p` that is not whitespace: a newline and the
// indentation after it, or the space after a colon, are taken 16 bytes at a
// time where the machine can, without a branch per byte.
char const* depois_do_espaco(char const* p, char const* fim)
{
    // Often there is nothing to skip, as before a colon or a comma.
    if (p != fim && !espaco(*p)) {
        return p;
    }
#if defined(__SSE2__)
    __m128i const espacos = _mm_set1_epi8(' ');
    __m128i const tab = _mm_set1_epi8('\t');
    // \t \n \v \f \r: the bytes 9 to 13, those whose distance from 9 is
    // at most 4 unsigned.
    __m128i const quatro = _mm_set1_epi8(4);
    while (fim - p >= 16) {
        __m128i const bloco = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
        __m128i const distancia = _mm_sub_epi8(bloco, tab);
        __m128i const brancos = _mm_or_si128(_mm_cmpeq_epi8(bloco, espacos),
                                             _mm_cmpeq_epi8(_mm_min_epu8(distancia, quatro), distancia));
        auto const outros = ~static_cast<unsigned>(_mm_movemask_epi8(brancos)) & 0xFFFFu;
        if (outros != 0) {
            return p + std::countr_zero(outros);
        }
        p += 16;
    }
#endif
    while (p != fim && espaco(*p)) {
        ++p;
    }
    return p;
}

// The whitespace before the keys of one object is nearly always the same
// run, a newline and the object's indentation: once seen, the next gap is
// compared with it whole and passed over by its known width, so that where
// the next key starts does not wait on a search through the bytes. The gap
// before the object's closing brace is expected one step of indentation
// shorter, and the first of an object within it one step longer.
class lacuna_repetida {
public:
    // True, and `p` past the gap, when the gap at `p` is the one remembered.
    bool passar(char const*& p, char const* fim) const { return passar(p, fim, largura_, false); }

    // True, and `p` past the gap, when the gap at `p` is the one remembered
    // short of `passo` bytes and a closing brace follows it.
    bool passar_ao_fim(char const*& p, char const* fim, unsigned passo) const
    {
        return largura_ > passo && passar(p, fim, largura_ - passo, true);
    }

    // The gap from `comeco` to `depois` remembered, when it fits a block.
    void lembrar(char const* comeco, char const* depois, char const* fim)
    {
        largura_ = static_cast<unsigned>(depois - comeco);
        if (largura_ >= 16 || fim - comeco < 16) {
            largura_ = 0;
            return;
        }
#if defined(__SSE2__)
        bytes_ = _mm_loadu_si128(reinterpret_cast<__m128i const*>(comeco));
#endif
    }

    unsigned largura() const { return largura_; }

    // The gap expected before the first key of an object within this one:
    // this one with `passo` more of its last byte.
    lacuna_repetida dentro(unsigned passo) const
    {
        lacuna_repetida filha;
#if defined(__SSE2__)
        if (largura_ != 0 && passo != 0 && largura_ + passo < 16) {
            filha.largura_ = largura_ + passo;
            __m128i const recuo = _mm_set1_epi8(static_cast<char>(ultimo_byte()));
            filha.bytes_ = _mm_or_si128(_mm_and_si128(bytes_, ate(largura_)),
                                        _mm_andnot_si128(ate(largura_), _mm_and_si128(recuo, ate(filha.largura_))));
        }
#else
        (void)passo;
#endif
        return filha;
    }

private:
#if defined(__SSE2__)
    // The first `n` lanes set, the others clear.
    static __m128i ate(unsigned n)
    {
        static constexpr std::array<unsigned char, 32> uns = {
            0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF};
        return _mm_loadu_si128(reinterpret_cast<__m128i const*>(uns.data() + 16 - n));
    }

    unsigned char ultimo_byte() const
    {
        alignas(16) std::array<unsigned char, 16> bytes;
        _mm_store_si128(reinterpret_cast<__m128i*>(bytes.data()), bytes_);
        return bytes[largura_ - 1];
    }
#endif

    bool passar(char const*& p, char const* fim, unsigned largura, bool fecha) const
    {
#if defined(__SSE2__)
        if (largura == 0 || fim - p < 16) {
            return false;
        }
        auto const iguais = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<__m128i const*>(p)), bytes_)));
        unsigned const todos = (1u << largura) - 1;
        if ((iguais & todos) != todos || (fecha ? p[largura] != '}' : espaco(p[largura]))) {
            return false;
        }
        p += largura;
        return true;
#else
        (void)p;
        (void)fim;
        (void)largura;
        (void)fecha;
        return false;
#endif
    }

    unsigned largura_ = 0;
#if defined(__SSE2__)
    __m128i bytes_{};
#endif
};

// The first byte at or after `p` that the inside of a string stops at: a
// quote, a backslash or a byte of a multibyte character; 16 bytes at a time
// where the machine can.
[[gnu::always_inline]] inline char const* ate_atencao_no_texto(char const* p, char const* fim)
{
#if defined(__SSE2__)
    __m128i const aspas = _mm_set1_epi8('"');
    __m128i const apostrofos = _mm_set1_epi8('\'');
    __m128i const barras = _mm_set1_epi8('\\');
    while (fim - p >= 16) {
        __m128i const bloco = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p));
        __m128i const achados = _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(bloco, aspas), _mm_cmpeq_epi8(bloco, apostrofos)),
                                             _mm_cmpeq_epi8(bloco, barras));
        // The high bit of every byte is taken as well: the bytes >= 0x80.
        auto const paradas = static_cast<unsigned>(_mm_movemask_epi8(achados) | _mm_movemask_epi8(bloco));
        if (paradas != 0) {
            return p + std::countr_zero(paradas);
        }
        p += 16;
    }
#endif
    while (p != fim && classes[static_cast<unsigned char>(*p)] != atencao_no_texto) {
        ++p;
    }
    return p;
}

// Two runs of `n` bytes compared in words, without a call: the names of a
// note's fields are short.
[[gnu::always_inline]] inline bool mesmos_bytes(char const* a, char const* b, std::size_t n)
{
    auto const palavra = [](char const* p) {
        std::uint64_t w;
        std::memcpy(&w, p, sizeof w);
        return w;
    };
    auto const meia = [](char const* p) {
        std::uint32_t w;
        std::memcpy(&w, p, sizeof w);
        return w;
    };
    if (n >= 8) {
        for (std::size_t i = 0; i + 8 < n; i += 8) {
            if (palavra(a + i) != palavra(b + i)) {
                return false;
            }
        }
        return palavra(a + n - 8) == palavra(b + n - 8);
    }
    if (n >= 4) {
        return meia(a) == meia(b) && meia(a + n - 4) == meia(b + n - 4);
    }
    for (std::size_t i = 0; i < n; ++i) {
        if (a[i] != b[i]) {
            return false;
        }
    }
    return true;
}

// Digits only, at least one, as a number that fits 64 bits.
bool decimal(std::string_view digitos, std::uint64_t& valor)
{
    if (digitos.empty()) {
        return false;
    }
    std::uint64_t acumulado = 0;
    for (char const c : digitos) {
        auto const algarismo = static_cast<unsigned char>(c - '0');
        if (algarismo > 9 || __builtin_mul_overflow(acumulado, 10u, &acumulado) ||
            __builtin_add_overflow(acumulado, algarismo, &acumulado)) {
            return false;
        }
    }
    valor = acumulado;
    return true;
}

// A number as a varint of the binary form, written at `p` (room for its
// bytes, ten at the most); the end of what was written.
char* varint_em(char* p, std::uint64_t valor)
{
    while (valor >= 0x80) {
        *p++ = static_cast<char>(valor | 0x80);
        valor >>= 7;
    }
    *p++ = static_cast<char>(valor);
    return p;
}

bool letra(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$';
}

bool digito(char c)
{
    return c >= '0' && c <= '9';
}

int hexa(char c)
{
    if (digito(c)) {
        return c - '0';
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    return -1;
}

void utf8(std::string& saida, std::uint32_t ponto)
{
    if (ponto < 0x80) {
        saida += static_cast<char>(ponto);
    } else if (ponto < 0x800) {
        saida += static_cast<char>(0xC0 | (ponto >> 6));
        saida += static_cast<char>(0x80 | (ponto & 0x3F));
    } else if (ponto < 0x10000) {
        saida += static_cast<char>(0xE0 | (ponto >> 12));
        saida += static_cast<char>(0x80 | ((ponto >> 6) & 0x3F));
        saida += static_cast<char>(0x80 | (ponto & 0x3F));
    } else {
        saida += static_cast<char>(0xF0 | (ponto >> 18));
        saida += static_cast<char>(0x80 | ((ponto >> 12) & 0x3F));
        saida += static_cast<char>(0x80 | ((ponto >> 6) & 0x3F));
        saida += static_cast<char>(0x80 | (ponto & 0x3F));
    }
}

// The length of the well-formed UTF-8 sequence at `p`, or 0: no overlong
// form, no surrogate, nothing beyond U+10FFFF.
std::size_t sequencia_utf8(unsigned char const* p, unsigned char const* fim)
{
    unsigned char const c = p[0];
    auto continua = [&](std::size_t i, unsigned char menor = 0x80, unsigned char maior = 0xBF) {
        return p + i < fim && p[i] >= menor && p[i] <= maior;
    };
    if (c >= 0xC2 && c <= 0xDF) {
        return continua(1) ? 2 : 0;
    }
    if (c >= 0xE0 && c <= 0xEF) {
        unsigned char const menor = c == 0xE0 ? 0xA0 : 0x80;
        unsigned char const maior = c == 0xED ? 0x9F : 0xBF;
        return continua(1, menor, maior) && continua(2) ? 3 : 0;
    }
    if (c >= 0xF0 && c <= 0xF4) {
        unsigned char const menor = c == 0xF0 ? 0x90 : 0x80;
        unsigned char const maior = c == 0xF4 ? 0x8F : 0xBF;
        return continua(1, menor, maior) && continua(2) && continua(3) ? 4 : 0;
    }
    return 0;
}

// A number as the text writes it: a whole number when it has neither
// fraction nor exponent and fits 64 bits, a double otherwise.
struct numero {
    enum class forma { com_sinal, sem_sinal, real } tipo = forma::sem_sinal;
    std::int64_t com_sinal = 0;
    std::uint64_t sem_sinal = 0;
    double real = 0;
};

// A decimal text in the form strtod reads, beyond the range of a double:
// true if its magnitude is above 1 (an overflow), false if below (a value
// that rounds to zero).
bool excede_para_cima(std::string_view texto)
{
    bool achou = false;
    // Digits before the point, leading zeros dropped; zeros after the point
    // before the first significant digit.
    std::size_t j = texto[0] == '-' ? 1 : 0;
    long long inteiros = 0;
    long long zeros_fracao = 0;
    bool ponto = false;
    for (; j < texto.size() && (digito(texto[j]) || texto[j] == '.'); ++j) {
        if (texto[j] == '.') {
            ponto = true;
        } else if (!ponto) {
            if (texto[j] != '0' || achou) {
                achou = true;
                ++inteiros;
            }
        } else if (!achou) {
            if (texto[j] == '0') {
                ++zeros_fracao;
            } else {
                achou = true;
            }
        }
    }
    long long const magnitude = inteiros > 0 ? inteiros - 1 : -(zeros_fracao + 1);
    long long expoente = 0;
    if (j < texto.size() && (texto[j] == 'e' || texto[j] == 'E')) {
        ++j;
        bool negativo = false;
        if (j < texto.size() && (texto[j] == '+' || texto[j] == '-')) {
            negativo = texto[j] == '-';
            ++j;
        }
        for (; j < texto.size() && digito(texto[j]); ++j) {
            if (expoente < 1'000'000'000) {
                expoente = expoente * 10 + (texto[j] - '0');
            }
        }
        if (negativo) {
            expoente = -expoente;
        }
    }
    return magnitude + expoente > 0;
}

class leitura {
public:
    leitura(std::unordered_map<Descriptor const*, leitor_json::tipo> const& tipos, std::string_view texto,
            std::string& bytes)
        : tipos_(tipos), inicio_(texto.data()), p_(texto.data()), fim_(texto.data() + texto.size()), bytes_(bytes)
    {
        // The binary form of a note is nearly always shorter than its text:
        // the keys become a byte or two.
        if (bytes_.size() < texto.size() / 2 + 64) {
            bytes_.resize(texto.size() / 2 + 64);
        }
        apontar(0);
    }

    bool documento(Message& mensagem)
    {
        pular_espaco();
        if (p_ == fim_ || *p_ != '{') {
            return falha("the root element must be a JSON object");
        }
        Descriptor const* const descritor = mensagem.GetDescriptor();
        auto const achado = tipos_.find(descritor);
        if (achado == tipos_.end()) {
            return falha(std::string("no JSON form known for ") + std::string(descritor->full_name()));
        }
        if (!objeto(achado->second, 1)) {
            return false;
        }
        pular_espaco();
        if (p_ != fim_) {
            return falha("text after the end of the note");
        }
        // The text becomes the message's binary form and the message's own
        // parser reads that: far cheaper than a reflection call per value,
        // and with the same outcome, since the binary form merges repeated
        // occurrences of a field the same way (the last scalar kept, the
        // messages merged, the repeated appended, a oneof's last member
        // kept).
        if (!mensagem.ParsePartialFromArray(inicio_saida_, static_cast<int>(usado()))) {
            return falha("the note does not fit its message");
        }
        return true;
    }

    std::string& motivo() { return motivo_; }

private:
    bool falha(std::string texto)
    {
        if (motivo_.empty()) {
            motivo_ = std::move(texto) + " (at byte " + std::to_string(p_ - inicio_) + ")";
        }
        return false;
    }

    bool falha_campo(campo_lido const& campo, std::string_view texto)
    {
        return falha(std::string(campo.descritor->name()) + ": " + std::string(texto));
    }

    // The binary form is written in `bytes_`, from `inicio_saida_` up to
    // `saida_`; the rest, up to `fim_saida_`, is room, grown on demand. The
    // pointers are kept here rather than asked of the string at each write.
    char* espaco_para(std::size_t n)
    {
        if (static_cast<std::size_t>(fim_saida_ - saida_) < n) [[unlikely]] {
            crescer(n);
        }
        return saida_;
    }

    std::size_t usado() const { return static_cast<std::size_t>(saida_ - inicio_saida_); }

    void apontar(std::size_t usado)
    {
        inicio_saida_ = bytes_.data();
        saida_ = inicio_saida_ + usado;
        fim_saida_ = inicio_saida_ + bytes_.size();
    }

    [[gnu::noinline]] void crescer(std::size_t n)
    {
        std::size_t const usados = usado();
        bytes_.resize(std::max(bytes_.size() * 2, usados + n));
        apontar(usados);
    }

    // The room for a field's tag and `n` bytes more; the tag written.
    char* etiqueta_e_espaco(campo_lido const& campo, std::size_t n)
    {
        char* const p = espaco_para(sizeof campo.etiqueta + n);
        std::memcpy(p, campo.etiqueta.data(), sizeof campo.etiqueta);
        return p + campo.tamanho_etiqueta;
    }

    void ate(char* p) { saida_ = p; }

    void etiqueta(campo_lido const& campo) { ate(etiqueta_e_espaco(campo, 0)); }

    void campo_varint(campo_lido const& campo, std::uint64_t valor) { ate(varint_em(etiqueta_e_espaco(campo, 10), valor)); }

    void campo_fixo(campo_lido const& campo, void const* valor, std::size_t tamanho)
    {
        char* const p = etiqueta_e_espaco(campo, tamanho);
        std::memcpy(p, valor, tamanho);
        ate(p + tamanho);
    }

    void campo_delimitado(campo_lido const& campo, std::string_view valor)
    {
        char* const p = varint_em(etiqueta_e_espaco(campo, 10 + valor.size()), valor.size());
        std::memcpy(p, valor.data(), valor.size());
        ate(p + valor.size());
    }

    void fim_do_grupo(campo_lido const& campo)
    {
        char* const p = espaco_para(sizeof campo.fim_do_grupo);
        std::memcpy(p, campo.fim_do_grupo.data(), sizeof campo.fim_do_grupo);
        ate(p + campo.tamanho_etiqueta);
    }

    // The length of a message is written before it but known only after:
    // `reservados` bytes are kept for it and the message written after them
    // (the start of which is returned).
    std::size_t abrir(std::size_t reservados)
    {
        saida_ = espaco_para(reservados) + reservados;
        return usado();
    }

    // The length of the message started at `comeco` set in the bytes kept
    // for it: a varint padded to their width when it fits (parsers take a
    // padded varint), otherwise the message is moved to make room.
    void fechar(std::size_t comeco, std::size_t reservados)
    {
        std::size_t tamanho = usado() - comeco;
        // The usual case: the length fits the bytes kept, one or two.
        if (tamanho < 128 && reservados == 1) {
            inicio_saida_[comeco - 1] = static_cast<char>(tamanho);
            return;
        }
        if (tamanho < 16384 && reservados == 2) {
            inicio_saida_[comeco - 2] = static_cast<char>(tamanho | 0x80);
            inicio_saida_[comeco - 1] = static_cast<char>(tamanho >> 7);
            return;
        }
        std::size_t largura = 1;
        while (largura < 10 && (tamanho >> (7 * largura)) != 0) {
            ++largura;
        }
        std::size_t const posicao = comeco - reservados;
        if (largura > reservados) {
            std::size_t const mais = largura - reservados;
            espaco_para(mais);
            std::memmove(inicio_saida_ + comeco + mais, inicio_saida_ + comeco, tamanho);
            saida_ += mais;
            reservados = largura;
        }
        char* p = inicio_saida_ + posicao;
        for (std::size_t i = 1; i < reservados; ++i) {
            *p++ = static_cast<char>(tamanho | 0x80);
            tamanho >>= 7;
        }
        *p = static_cast<char>(tamanho);
    }

    void pular_espaco()
    {
        p_ = depois_do_espaco(p_, fim_);
    }

    bool literal(std::string_view palavra) const
    {
        return static_cast<std::size_t>(fim_ - p_) >= palavra.size() && std::string_view(p_, palavra.size()) == palavra;
    }

    // A string opened by " or ', its escapes undone; `saida` is used only
    // when there is an escape, otherwise `vista` points into the text.
    bool texto(std::string& saida, std::string_view& vista)
    {
        // Nearly every string of a note is plain ASCII without an escape:
        // its inside is the text itself.
        char const* const fim_simples = ate_atencao_no_texto(p_ + 1, fim_);
        if (fim_simples != fim_ && *fim_simples == *p_) {
            vista = std::string_view(p_ + 1, static_cast<std::size_t>(fim_simples - p_ - 1));
            p_ = fim_simples + 1;
            return true;
        }
        return texto_com_atencao(saida, vista);
    }

    [[gnu::noinline]] bool texto_com_atencao(std::string& saida, std::string_view& vista)
    {
        char const aspa = *p_++;
        char const* const comeco = p_;
        bool copiado = false;
        saida.clear();
        while (true) {
            // A run that needs nothing but copying when there was an escape.
            char const* const corrida = p_;
            p_ = ate_atencao_no_texto(p_, fim_);
            if (copiado) {
                saida.append(corrida, p_);
            }
            if (p_ == fim_) {
                return falha("closing quote expected in string");
            }
            auto const c = static_cast<unsigned char>(*p_);
            if (c == static_cast<unsigned char>(aspa)) {
                if (!copiado) {
                    vista = std::string_view(comeco, static_cast<std::size_t>(p_ - comeco));
                } else {
                    vista = saida;
                }
                ++p_;
                return true;
            }
            if (c == '\\') {
                if (!copiado) {
                    saida.assign(comeco, p_);
                    copiado = true;
                }
                if (!escape(saida)) {
                    return false;
                }
                continue;
            }
            std::size_t tamanho = 1;
            if (c >= 0x80) {
                tamanho = sequencia_utf8(reinterpret_cast<unsigned char const*>(p_),
                                         reinterpret_cast<unsigned char const*>(fim_));
                if (tamanho == 0) {
                    return falha("text that is not UTF-8");
                }
            }
            if (copiado) {
                saida.append(p_, tamanho);
            }
            p_ += tamanho;
        }
    }

    bool quatro_hexa(char const* q, std::uint32_t& ponto) const
    {
        if (fim_ - q < 4) {
            return false;
        }
        ponto = 0;
        for (int i = 0; i < 4; ++i) {
            int const h = hexa(q[i]);
            if (h < 0) {
                return false;
            }
            ponto = ponto * 16 + static_cast<std::uint32_t>(h);
        }
        return true;
    }

    bool escape(std::string& saida)
    {
        ++p_;
        if (p_ == fim_) {
            return falha("closing quote expected in string");
        }
        char const c = *p_;
        switch (c) {
        case 'b': saida += '\b'; break;
        case 'f': saida += '\f'; break;
        case 'n': saida += '\n'; break;
        case 'r': saida += '\r'; break;
        case 't': saida += '\t'; break;
        case 'v': saida += '\v'; break;
        case 'u': return unicode(saida);
        default:
            // Any other escaped character stands for itself; one of several
            // bytes is left for the UTF-8 check of the loop.
            if (static_cast<unsigned char>(c) < 0x80) {
                saida += c;
            } else {
                return true;
            }
        }
        ++p_;
        return true;
    }

    bool unicode(std::string& saida)
    {
        std::uint32_t ponto = 0;
        if (!quatro_hexa(p_ + 1, ponto)) {
            return falha("invalid \\u escape");
        }
        p_ += 5;
        if (ponto >= 0xD800 && ponto <= 0xDBFF) {
            std::uint32_t baixo = 0;
            if (fim_ - p_ < 6 || p_[0] != '\\' || p_[1] != 'u') {
                return falha("missing low surrogate");
            }
            if (!quatro_hexa(p_ + 2, baixo)) {
                return falha("invalid \\u escape");
            }
            if (baixo < 0xDC00 || baixo > 0xDFFF) {
                return falha("invalid low surrogate");
            }
            ponto = (((ponto & 0x3FF) << 10) | (baixo & 0x3FF)) + 0x10000;
            p_ += 6;
        } else if (ponto >= 0xDC00 && ponto <= 0xDFFF) {
            return falha("invalid unicode code point");
        }
        utf8(saida, ponto);
        return true;
    }

    bool chave(std::string& saida, std::string_view& vista)
    {
        if (p_ != fim_ && (*p_ == '"' || *p_ == '\'')) {
            return texto(saida, vista);
        }
        if (p_ == fim_ || !letra(*p_) || literal("true") || literal("false") || literal("null")) {
            return falha("expected an object key or }");
        }
        char const* const comeco = p_;
        while (p_ != fim_ && (letra(*p_) || digito(*p_))) {
            ++p_;
        }
        vista = std::string_view(comeco, static_cast<std::size_t>(p_ - comeco));
        return true;
    }

    // How many of the fields that follow the last key are tried as the
    // next one, by both ways of comparing a key below.
    static constexpr int chaves_previstas = 5;

    // The field whose name the quoted key at `p_` is, when it is one of the
    // few that follow the last key in the message's order, as in a note
    // written in that order: then the key is passed over, and neither
    // scanned nor looked up. Null otherwise, with `p_` where it was. A name
    // has no quote, backslash or byte above ASCII, so the key that shows
    // it and then its closing quote is that name.
    campo_lido const* chave_prevista(campo_lido const* proximo)
    {
        if (p_ == fim_ || (*p_ != '"' && *p_ != '\'')) {
            return nullptr;
        }
        char const aspa = *p_;
        auto const resta = static_cast<std::size_t>(fim_ - p_);
        for (int i = 0; i < chaves_previstas && proximo != nullptr; ++i, proximo = proximo->seguinte) {
            std::size_t const n = proximo->nome.size();
            if (n + 2 <= resta && p_[n + 1] == aspa && mesmos_bytes(p_ + 1, proximo->nome.data(), n)) {
                p_ += n + 2;
                return proximo;
            }
        }
        return nullptr;
    }

    // The field whose key, quoted and followed by its colon, is at `p_`,
    // when it is one of the few that follow the last key (see
    // chave_prevista), compared 32 bytes at once: then `p_` is past the
    // colon. Null otherwise, with `p_` where it was; the general way then
    // gives what it always gave.
    campo_lido const* chave_e_dois_pontos(campo_lido const* proximo)
    {
#if defined(__SSE2__)
        if (fim_ - p_ < 32) {
            return nullptr;
        }
        __m128i const baixo = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p_));
        __m128i const alto = _mm_loadu_si128(reinterpret_cast<__m128i const*>(p_ + 16));
        for (int i = 0; i < chaves_previstas && proximo != nullptr; ++i, proximo = proximo->seguinte) {
            auto const* const chave = reinterpret_cast<__m128i const*>(proximo->chave.data());
            auto const iguais = static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(baixo, chave[0]))) |
                                (static_cast<std::uint32_t>(_mm_movemask_epi8(_mm_cmpeq_epi8(alto, chave[1]))) << 16);
            std::uint32_t const mascara = proximo->mascara_chave;
            if (mascara != 0 && (iguais & mascara) == mascara) {
                p_ += proximo->tamanho_chave;
                return proximo;
            }
        }
#else
        (void)proximo;
#endif
        return nullptr;
    }

    bool objeto(tipo_lido const& tipo, int profundidade)
    {
        if (profundidade > leitor_json::profundidade_maxima) {
            return falha("message too deep");
        }
        if (tipo.desconhecido) {
            return falha(std::string("no JSON form known for ") + std::string(tipo.descritor->full_name()));
        }
        ++p_;
        std::uint64_t oneofs = 0;
        campo_lido const* proximo = tipo.primeiro;
        lacuna_repetida const* const mae = mae_;
        lacuna_repetida lacuna = mae != nullptr ? mae->dentro(passo_) : lacuna_repetida();
        while (true) {
            if (!lacuna.passar(p_, fim_) && !lacuna.passar_ao_fim(p_, fim_, passo_)) {
                char const* const antes = p_;
                pular_espaco();
                bool const primeira = lacuna.largura() == 0;
                lacuna.lembrar(antes, p_, fim_);
                // The step of indentation, from the first object met within
                // another.
                if (primeira && passo_ == 0 && mae != nullptr && lacuna.largura() > mae->largura()) {
                    passo_ = lacuna.largura() - mae->largura();
                }
            }
            if (p_ != fim_ && *p_ == '}') {
                ++p_;
                return true;
            }
            std::string_view chave_lida;
            campo_lido const* campo = chave_e_dois_pontos(proximo);
            if (campo == nullptr) {
                campo = chave_prevista(proximo);
                if (campo == nullptr && !chave(nome_, chave_lida)) {
                    return false;
                }
                pular_espaco();
                if (p_ == fim_ || *p_ != ':') {
                    return falha("expected : between key and value");
                }
                ++p_;
            }
            // Mostly a single space.
            if (fim_ - p_ >= 2 && p_[0] == ' ' && !espaco(p_[1])) {
                ++p_;
            } else {
                pular_espaco();
            }
            if (campo == nullptr) {
                campo = tipo.campos.achar(chave_lida);
                if (campo == nullptr) {
                    return falha(std::string(chave_lida) + ": cannot find field");
                }
            }
            proximo = campo->depois;
            mae_ = &lacuna;
            if (!valor_do_campo(*campo, oneofs, profundidade)) {
                return false;
            }
            // Mostly the comma right after the value; after the last, the
            // gap before the closing brace, one step shorter than the keys'.
            if (p_ != fim_ && *p_ == ',') {
                ++p_;
                continue;
            }
            if (lacuna.passar_ao_fim(p_, fim_, passo_)) {
                ++p_;
                return true;
            }
            pular_espaco();
            if (p_ != fim_ && *p_ == ',') {
                ++p_;
            } else if (p_ == fim_ || *p_ != '}') {
                return falha("expected , or } after key:value pair");
            }
        }
    }

    bool valor_do_campo(campo_lido const& campo, std::uint64_t& oneofs, int profundidade)
    {
        if (p_ == fim_) {
            return falha("expected a value");
        }
        // A quoted or numeric value of a plain scalar field: neither null, nor
        // a list, nor a member of a oneof to mark.
        if (campo.escalar_simples && (*p_ == '"' || digito(*p_))) {
            return escalar(campo);
        }
        if (literal("null")) {
            p_ += 4;
            return true;
        }
        if (*p_ == '[') {
            if (!campo.repetido) {
                return falha_campo(campo, "field is not repeated, cannot start a list");
            }
            return lista(campo, profundidade);
        }
        if (campo.repetido) {
            return elemento(campo, profundidade);
        }
        if (campo.oneof >= 0) {
            std::uint64_t const bit = std::uint64_t{1} << campo.oneof;
            if ((oneofs & bit) != 0) {
                return falha_campo(campo, std::string("oneof '") +
                                              std::string(campo.descritor->containing_oneof()->name()) +
                                              "' is already set");
            }
            oneofs |= bit;
        }
        if (campo.tipo_cpp == FieldDescriptor::CPPTYPE_MESSAGE) {
            return mensagem_do_valor(campo, profundidade);
        }
        return escalar(campo);
    }

    // A message's value: an object, or the bare value of a wrapper.
    [[gnu::always_inline]] bool mensagem_do_valor(campo_lido const& campo, int profundidade)
    {
        tipo_lido const& tipo = *campo.mensagem;
        if (*p_ == '{') {
            etiqueta(campo);
            if (campo.grupo) {
                if (!objeto(tipo, profundidade + 1)) {
                    return false;
                }
                fim_do_grupo(campo);
                return true;
            }
            // Most messages of a note are shorter than 2^14 bytes, those of
            // a few whole numbers shorter than 2^7.
            std::size_t const comeco = abrir(tipo.reserva);
            if (!objeto(tipo, profundidade + 1)) {
                return false;
            }
            fechar(comeco, tipo.reserva);
            return true;
        }
        if (!tipo.embrulho) {
            return falha_campo(campo, "a message is written as an object");
        }
        etiqueta(campo);
        if (campo.grupo) {
            if (!escalar(tipo.lista.front())) {
                return false;
            }
            fim_do_grupo(campo);
            return true;
        }
        // A wrapper's bare value: most are shorter than 128 bytes.
        std::size_t const comeco = abrir(1);
        if (!escalar(tipo.lista.front())) {
            return false;
        }
        fechar(comeco, 1);
        return true;
    }

    // One element of a repeated field.
    bool elemento(campo_lido const& campo, int profundidade)
    {
        if (campo.tipo_cpp == FieldDescriptor::CPPTYPE_MESSAGE) {
            if (*p_ != '{' && !campo.mensagem->embrulho) {
                return falha_campo(campo, "a message is written as an object");
            }
            return mensagem_do_valor(campo, profundidade);
        }
        if (*p_ == '{') {
            return falha_campo(campo, "starting an object on a scalar field");
        }
        return escalar(campo);
    }

    // The values of a repeated field; arrays within it add their elements to
    // the same field, at any depth, as protobuf's reader does.
    bool lista(campo_lido const& campo, int profundidade)
    {
        // The objects of an array are indented further than their parent's
        // keys by more than a step: none is expected.
        mae_ = nullptr;
        std::size_t abertas = 0;
        bool depois_de_valor = false;
        while (true) {
            pular_espaco();
            if (p_ == fim_) {
                return falha("unexpected end of the text in an array");
            }
            char const c = *p_;
            if (depois_de_valor) {
                if (c == ',') {
                    ++p_;
                    depois_de_valor = false;
                    continue;
                }
                if (c != ']') {
                    return falha("expected , or ] after array value");
                }
            }
            if (c == ']') {
                ++p_;
                --abertas;
                depois_de_valor = true;
                if (abertas == 0) {
                    return true;
                }
                continue;
            }
            if (c == '[') {
                ++p_;
                ++abertas;
                depois_de_valor = false;
                continue;
            }
            if (c == ',') {
                return falha("unexpected token");
            }
            mae_ = nullptr;
            if (literal("null")) {
                p_ += 4;
            } else if (!elemento(campo, profundidade)) {
                return false;
            }
            depois_de_valor = true;
        }
    }

    bool ler_numero(numero& lido, std::string_view& vista)
    {
        char const* const comeco = p_;
        bool real = false;
        while (p_ != fim_ && (digito(*p_) || *p_ == '-' || *p_ == '+' || *p_ == '.' || *p_ == 'e' || *p_ == 'E')) {
            real = real || *p_ == '.' || *p_ == 'e' || *p_ == 'E';
            ++p_;
        }
        vista = std::string_view(comeco, static_cast<std::size_t>(p_ - comeco));
        bool const negativo = vista[0] == '-';
        if (!real) {
            std::size_t const zero = negativo ? 1 : 0;
            if (vista.size() >= zero + 2 && vista[zero] == '0') {
                return falha("octal or hexadecimal numbers are not JSON");
            }
            std::uint64_t absoluto = 0;
            if (decimal(vista.substr(zero), absoluto)) {
                if (!negativo) {
                    lido.tipo = numero::forma::sem_sinal;
                    lido.sem_sinal = absoluto;
                    return true;
                }
                if (absoluto <= std::uint64_t{1} << 63) {
                    lido.tipo = numero::forma::com_sinal;
                    lido.com_sinal = absoluto == std::uint64_t{1} << 63 ? std::numeric_limits<std::int64_t>::min()
                                                                        : -static_cast<std::int64_t>(absoluto);
                    return true;
                }
            }
        }
        // strtod's grammar, without its leading '+' (the text cannot start
        // with it) and with no word such as inf or nan (no letter is taken).
        char const* const fim = vista.data() + vista.size();
        auto const [resto, erro] = std::from_chars(vista.data(), fim, lido.real);
        if (resto != fim || (erro != std::errc() && erro != std::errc::result_out_of_range)) {
            return falha("unable to parse number");
        }
        if (erro == std::errc::result_out_of_range) {
            if (excede_para_cima(vista)) {
                return falha("number exceeds the range of double");
            }
            lido.real = negativo ? -0.0 : 0.0;
        }
        if (!std::isfinite(lido.real)) {
            return falha("number exceeds the range of double");
        }
        lido.tipo = numero::forma::real;
        return true;
    }

    // A whole number of type T from a number of the text: in range, and a
    // double only when it is integral.
    template <class T>
    static bool inteiro(numero const& lido, T& valor)
    {
        using limites = std::numeric_limits<T>;
        switch (lido.tipo) {
        case numero::forma::com_sinal:
            if constexpr (limites::is_signed) {
                if (lido.com_sinal < limites::min() || lido.com_sinal > limites::max()) {
                    return false;
                }
            } else if (lido.com_sinal < 0 || static_cast<std::uint64_t>(lido.com_sinal) > limites::max()) {
                return false;
            }
            valor = static_cast<T>(lido.com_sinal);
            return true;
        case numero::forma::sem_sinal:
            if (lido.sem_sinal > static_cast<std::uint64_t>(limites::max())) {
                return false;
            }
            valor = static_cast<T>(lido.sem_sinal);
            return true;
        case numero::forma::real: {
            double const d = lido.real;
            // 2^63 and 2^64 are exact doubles: the bounds compare exactly.
            double const acima = limites::is_signed ? -2.0 * static_cast<double>(limites::min())
                                                    : 2.0 * (static_cast<double>(limites::max() / 2) + 1.0);
            if (std::isnan(d) || d < static_cast<double>(limites::min()) || d >= acima || std::trunc(d) != d) {
                return false;
            }
            valor = static_cast<T>(d);
            return true;
        }
        }
        return false;
    }

    // A whole number of type T from a quoted text: an optional sign and
    // digits, nothing else (no space, fraction or exponent).
    template <class T>
    static bool inteiro(std::string_view texto, T& valor)
    {
        if (texto.empty()) {
            return false;
        }
        bool negativo = false;
        if (texto[0] == '+' || texto[0] == '-') {
            negativo = texto[0] == '-';
            texto.remove_prefix(1);
            if (negativo && !std::numeric_limits<T>::is_signed) {
                return false;
            }
        }
        std::uint64_t absoluto = 0;
        if (!decimal(texto, absoluto)) {
            return false;
        }
        numero lido;
        if (negativo) {
            if (absoluto > std::uint64_t{1} << 63) {
                return false;
            }
            lido.tipo = numero::forma::com_sinal;
            lido.com_sinal = absoluto == std::uint64_t{1} << 63 ? std::numeric_limits<std::int64_t>::min()
                                                                : -static_cast<std::int64_t>(absoluto);
        } else {
            lido.sem_sinal = absoluto;
        }
        return inteiro(lido, valor);
    }

    static bool real(std::string_view texto, double& valor)
    {
        if (texto == "NaN") {
            valor = std::numeric_limits<double>::quiet_NaN();
            return true;
        }
        if (texto == "Infinity" || texto == "-Infinity") {
            valor = texto[0] == '-' ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
            return true;
        }
        if (texto.empty() || texto[0] == ' ' || texto.back() == ' ') {
            return false;
        }
        auto const [resto, erro] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
        return erro == std::errc() && resto == texto.data() + texto.size();
    }

    static bool real(numero const& lido, double& valor)
    {
        switch (lido.tipo) {
        case numero::forma::com_sinal: valor = static_cast<double>(lido.com_sinal); return true;
        case numero::forma::sem_sinal: valor = static_cast<double>(lido.sem_sinal); return true;
        case numero::forma::real: valor = lido.real; return true;
        }
        return false;
    }

    static bool base64(std::string_view texto, std::string& saida)
    {
        saida.clear();
        std::uint32_t acumulado = 0;
        int bits = 0;
        std::size_t i = 0;
        for (; i < texto.size() && texto[i] != '='; ++i) {
            char const c = texto[i];
            int v = -1;
            if (c >= 'A' && c <= 'Z') {
                v = c - 'A';
            } else if (c >= 'a' && c <= 'z') {
                v = c - 'a' + 26;
            } else if (digito(c)) {
                v = c - '0' + 52;
            } else if (c == '+' || c == '-') {
                v = 62;
            } else if (c == '/' || c == '_') {
                v = 63;
            } else {
                return false;
            }
            acumulado = (acumulado << 6) | static_cast<std::uint32_t>(v);
            bits += 6;
            if (bits >= 8) {
                bits -= 8;
                saida += static_cast<char>((acumulado >> bits) & 0xFF);
            }
        }
        bool const preenchido = i < texto.size();
        for (; i < texto.size(); ++i) {
            if (texto[i] != '=') {
                return false;
            }
        }
        // The bits left over must be zeros, and padding, when there is
        // any, must complete the last group of four.
        return bits < 6 && (acumulado & ((1u << bits) - 1)) == 0 &&
               (!preenchido || (bits != 0 && texto.size() % 4 == 0));
    }

    // A scalar of a field, or of a wrapper's value, written with its tag.
    // The usual pairs of field and value (a text, an enumeration by name, a
    // whole number quoted or of digits only) are read here, without the
    // general path's questions; anything else goes the general path from
    // the value's start, which gives what it always gave.
    bool escalar(campo_lido const& campo)
    {
        char const* const comeco = p_;
        if (*p_ == '"') {
            std::string_view vista;
            switch (campo.tipo_campo) {
            case FieldDescriptor::TYPE_STRING:
                if (!texto(texto_, vista)) {
                    return false;
                }
                campo_delimitado(campo, vista);
                return true;
            case FieldDescriptor::TYPE_ENUM:
                if (!texto(texto_, vista)) {
                    return false;
                }
                if (auto const* const nomeado = campo.valores->achar(vista)) {
                    campo_varint(campo, static_cast<std::uint64_t>(static_cast<std::int64_t>(nomeado->number())));
                    return true;
                }
                break;
            case FieldDescriptor::TYPE_INT32: return inteiro_entre_aspas<std::int32_t>(campo, comeco);
            case FieldDescriptor::TYPE_INT64: return inteiro_entre_aspas<std::int64_t>(campo, comeco);
            case FieldDescriptor::TYPE_UINT32: return inteiro_entre_aspas<std::uint32_t>(campo, comeco);
            case FieldDescriptor::TYPE_UINT64: return inteiro_entre_aspas<std::uint64_t>(campo, comeco);
            default: break;
            }
        } else if (digito(*p_)) {
            switch (campo.tipo_campo) {
            case FieldDescriptor::TYPE_INT32: return inteiro_de_digitos<std::int32_t>(campo);
            case FieldDescriptor::TYPE_INT64: return inteiro_de_digitos<std::int64_t>(campo);
            case FieldDescriptor::TYPE_UINT32: return inteiro_de_digitos<std::uint32_t>(campo);
            case FieldDescriptor::TYPE_UINT64: return inteiro_de_digitos<std::uint64_t>(campo);
            default: break;
            }
        }
        p_ = comeco;
        return escalar_geral(campo);
    }

    // A whole number in quotes for a varint field.
    template <class T>
    bool inteiro_entre_aspas(campo_lido const& campo, char const* comeco)
    {
        // Mostly digits only, as the 64-bit numbers of a note are written,
        // and then the closing quote: read as they go, without the scan for
        // the string's end and the general number's questions.
        char const* q = p_ + 1;
        std::uint64_t digitos = 0;
        char const* const limite = fim_ - q > 19 ? q + 19 : fim_;
        while (q != limite && digito(*q)) {
            digitos = digitos * 10 + static_cast<std::uint64_t>(*q - '0');
            ++q;
        }
        if (q != p_ + 1 && q != fim_ && *q == '"' &&
            digitos <= static_cast<std::uint64_t>(std::numeric_limits<T>::max())) {
            p_ = q + 1;
            varint_de(campo, static_cast<T>(digitos));
            return true;
        }
        std::string_view vista;
        if (!texto(texto_, vista)) {
            return false;
        }
        T valor{};
        if (!inteiro(vista, valor)) {
            p_ = comeco;
            return escalar_geral(campo);
        }
        varint_de(campo, valor);
        return true;
    }

    // A whole number of digits only, not started by a zero unless alone and
    // not followed by what makes it a real number, for a varint field.
    template <class T>
    bool inteiro_de_digitos(campo_lido const& campo)
    {
        char const* q = p_;
        std::uint64_t valor = 0;
        // 19 digits never overflow 64 bits.
        char const* const limite = fim_ - q > 19 ? q + 19 : fim_;
        while (q != limite && digito(*q)) {
            valor = valor * 10 + static_cast<std::uint64_t>(*q - '0');
            ++q;
        }
        bool const segue_numero =
            q != fim_ && (digito(*q) || *q == '.' || *q == 'e' || *q == 'E' || *q == '-' || *q == '+');
        if (segue_numero || (*p_ == '0' && q - p_ > 1) || valor > static_cast<std::uint64_t>(std::numeric_limits<T>::max())) {
            return escalar_geral(campo);
        }
        p_ = q;
        varint_de(campo, static_cast<T>(valor));
        return true;
    }

    // A whole number as a varint field writes it: a negative one in all ten
    // bytes, as if of 64 bits.
    template <class T>
    void varint_de(campo_lido const& campo, T valor)
    {
        campo_varint(campo, static_cast<std::uint64_t>(
                                static_cast<std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>>(valor)));
    }

    // Any scalar of a field, in any of the forms the text may give it.
    [[gnu::noinline]] bool escalar_geral(campo_lido const& lido_do_campo)
    {
        FieldDescriptor const& campo = *lido_do_campo.descritor;
        numero lido;
        std::string_view vista;
        bool aspas = false;
        bool logico = false;
        bool verdade = false;
        char const c = *p_;
        if (c == '"' || c == '\'') {
            if (!texto(texto_, vista)) {
                return false;
            }
            aspas = true;
        } else if (c == '-' || digito(c)) {
            if (!ler_numero(lido, vista)) {
                return false;
            }
        } else if (literal("true") || literal("false")) {
            logico = true;
            verdade = c == 't';
            p_ += verdade ? 4 : 5;
        } else if (c == '{') {
            return falha_campo(lido_do_campo, "starting an object on a scalar field");
        } else {
            return falha("expected a value");
        }
        auto recusa = [&] {
            return falha_campo(lido_do_campo, std::string("invalid value ") +
                                          (aspas ? "\"" + std::string(vista) + "\"" : std::string(vista)) +
                                          " for type " + std::string(campo.type_name()));
        };
        if (logico) {
            if (lido_do_campo.tipo_cpp != FieldDescriptor::CPPTYPE_BOOL) {
                return recusa();
            }
            campo_varint(lido_do_campo, verdade ? 1 : 0);
            return true;
        }
        switch (lido_do_campo.tipo_cpp) {
        case FieldDescriptor::CPPTYPE_STRING: {
            if (!aspas) {
                return recusa();
            }
            if (lido_do_campo.bytes) {
                if (!base64(vista, binario_)) {
                    return recusa();
                }
                vista = binario_;
            }
            campo_delimitado(lido_do_campo, vista);
            return true;
        }
        case FieldDescriptor::CPPTYPE_INT32: return inteiro_do_campo<std::int32_t>(lido_do_campo, aspas, vista, lido, recusa);
        case FieldDescriptor::CPPTYPE_UINT32: return inteiro_do_campo<std::uint32_t>(lido_do_campo, aspas, vista, lido, recusa);
        case FieldDescriptor::CPPTYPE_INT64: return inteiro_do_campo<std::int64_t>(lido_do_campo, aspas, vista, lido, recusa);
        case FieldDescriptor::CPPTYPE_UINT64: return inteiro_do_campo<std::uint64_t>(lido_do_campo, aspas, vista, lido, recusa);
        case FieldDescriptor::CPPTYPE_ENUM: {
            std::int32_t valor = 0;
            if (aspas) {
                if (auto const* const nomeado = lido_do_campo.valores->achar(vista)) {
                    valor = nomeado->number();
                } else if (std::int32_t numero_lido = 0;
                           inteiro(vista, numero_lido) &&
                           lido_do_campo.enumeracao->FindValueByNumber(numero_lido) != nullptr) {
                    valor = numero_lido;
                } else {
                    return recusa();
                }
            } else if (std::int32_t numero_lido = 0; inteiro(lido, numero_lido)) {
                valor = numero_lido;
            } else {
                return recusa();
            }
            campo_varint(lido_do_campo, static_cast<std::uint64_t>(static_cast<std::int64_t>(valor)));
            return true;
        }
        case FieldDescriptor::CPPTYPE_DOUBLE:
        case FieldDescriptor::CPPTYPE_FLOAT: {
            double valor = 0;
            if (!(aspas ? real(vista, valor) : real(lido, valor))) {
                return recusa();
            }
            if (lido_do_campo.tipo_cpp == FieldDescriptor::CPPTYPE_DOUBLE) {
                campo_fixo(lido_do_campo, &valor, sizeof valor);
            } else {
                if (std::isfinite(valor) && std::abs(valor) > std::numeric_limits<float>::max()) {
                    return recusa();
                }
                auto const curto = static_cast<float>(valor);
                campo_fixo(lido_do_campo, &curto, sizeof curto);
            }
            return true;
        }
        case FieldDescriptor::CPPTYPE_BOOL:
            if (aspas && (vista == "true" || vista == "false")) {
                campo_varint(lido_do_campo, vista == "true" ? 1 : 0);
                return true;
            }
            return recusa();
        case FieldDescriptor::CPPTYPE_MESSAGE: break;
        }
        return recusa();
    }

    template <class T, class Recusa>
    bool inteiro_do_campo(campo_lido const& lido_do_campo, bool aspas, std::string_view vista, numero const& lido,
                          Recusa const& recusa)
    {
        T valor{};
        if (!(aspas ? inteiro(vista, valor) : inteiro(lido, valor))) {
            return recusa();
        }
        using sem_sinal = std::make_unsigned_t<T>;
        switch (lido_do_campo.tipo_campo) {
        case FieldDescriptor::TYPE_SINT32:
        case FieldDescriptor::TYPE_SINT64:
            // Zigzag: the sign in the lowest bit.
            if constexpr (std::is_signed_v<T>) {
                auto const bits = static_cast<sem_sinal>(valor);
                campo_varint(lido_do_campo, static_cast<sem_sinal>((bits << 1) ^ (valor < 0 ? ~sem_sinal{} : sem_sinal{})));
            }
            break;
        case FieldDescriptor::TYPE_FIXED32:
        case FieldDescriptor::TYPE_SFIXED32:
        case FieldDescriptor::TYPE_FIXED64:
        case FieldDescriptor::TYPE_SFIXED64: campo_fixo(lido_do_campo, &valor, sizeof valor); break;
        default:
            // A negative 32-bit value takes all ten bytes, as if of 64 bits.
            campo_varint(lido_do_campo, static_cast<std::uint64_t>(
                                            static_cast<std::conditional_t<std::is_signed_v<T>, std::int64_t, std::uint64_t>>(valor)));
            break;
        }
        return true;
    }

    std::unordered_map<Descriptor const*, leitor_json::tipo> const& tipos_;
    char const* const inicio_;
    char const* p_;
    char const* const fim_;
    std::string texto_;
    std::string binario_;
    // A key with an escape, undone; read and looked up before any value.
    std::string nome_;
    std::string motivo_;
    // The binary form of the note; see espaco_para.
    std::string& bytes_;
    char* inicio_saida_ = nullptr;
    char* saida_ = nullptr;
    char* fim_saida_ = nullptr;
    // The gap before the keys of the object whose value is being read, and
    // the step of indentation of the text: see lacuna_repetida.
    lacuna_repetida const* mae_ = nullptr;
    unsigned passo_ = 0;
};

// The wire type of a field's values: how the binary form delimits them.
std::uint32_t tipo_no_fio(FieldDescriptor::Type tipo)
{
    switch (tipo) {
    case FieldDescriptor::TYPE_DOUBLE:
    case FieldDescriptor::TYPE_FIXED64:
    case FieldDescriptor::TYPE_SFIXED64: return 1;
    case FieldDescriptor::TYPE_STRING:
    case FieldDescriptor::TYPE_BYTES:
    case FieldDescriptor::TYPE_MESSAGE: return 2;
    case FieldDescriptor::TYPE_GROUP: return 3;
    case FieldDescriptor::TYPE_FLOAT:
    case FieldDescriptor::TYPE_FIXED32:
    case FieldDescriptor::TYPE_SFIXED32: return 5;
    default: return 0;
    }
}

// A tag as a varint; its length.
std::size_t etiquetar(std::array<char, 5>& bytes, std::uint32_t valor)
{
    return static_cast<std::size_t>(varint_em(bytes.data(), valor) - bytes.data());
}

}  // namespace

leitor_json::leitor_json(Descriptor const& raiz)
{
    indexar(raiz);
}

leitor_json::tipo& leitor_json::indexar(Descriptor const& descritor)
{
    if (auto const achado = tipos_.find(&descritor); achado != tipos_.end()) {
        return achado->second;
    }
    // The map's nodes stay where they are as it grows: the addresses of the
    // types and of their fields are kept.
    tipo& novo = tipos_[&descritor];
    std::string_view const nome = descritor.full_name();
    if (nome.substr(0, 16) == "google.protobuf.") {
        novo.embrulho = std::find(embrulhos.begin(), embrulhos.end(), nome) != embrulhos.end();
        novo.desconhecido = !novo.embrulho;
    }
    // One bit per oneof in the reading of an object.
    novo.desconhecido = novo.desconhecido || descritor.oneof_decl_count() > 64;
    novo.descritor = &descritor;
    novo.lista.resize(static_cast<std::size_t>(descritor.field_count()));
    for (int i = 0; i < descritor.field_count(); ++i) {
        FieldDescriptor const* const descritor_campo = descritor.field(i);
        campo& lido = novo.lista[static_cast<std::size_t>(i)];
        lido.descritor = descritor_campo;
        lido.tipo_cpp = descritor_campo->cpp_type();
        lido.tipo_campo = descritor_campo->type();
        lido.grupo = lido.tipo_campo == FieldDescriptor::TYPE_GROUP;
        auto const numero = static_cast<std::uint32_t>(descritor_campo->number());
        lido.tamanho_etiqueta = static_cast<unsigned char>(
            etiquetar(lido.etiqueta, (numero << 3) | tipo_no_fio(lido.tipo_campo)));
        if (lido.grupo) {
            etiquetar(lido.fim_do_grupo, (numero << 3) | 4);
        }
        lido.repetido = descritor_campo->is_repeated();
        lido.bytes = descritor_campo->type() == FieldDescriptor::TYPE_BYTES;
        lido.oneof = descritor_campo->containing_oneof() == nullptr ? -1 : descritor_campo->containing_oneof()->index();
        lido.escalar_simples = !lido.repetido && lido.oneof < 0 && lido.tipo_cpp != FieldDescriptor::CPPTYPE_MESSAGE;
        lido.enumeracao = descritor_campo->enum_type();
        if (lido.enumeracao != nullptr) {
            auto const [valores, novos] = enumeracoes_.try_emplace(lido.enumeracao);
            if (novos) {
                for (int j = 0; j < lido.enumeracao->value_count(); ++j) {
                    valores->second.incluir(lido.enumeracao->value(j)->name(), lido.enumeracao->value(j));
                }
            }
            lido.valores = &valores->second;
        }
        novo.campos.incluir(descritor_campo->name(), &lido);
        novo.campos.incluir(descritor_campo->json_name(), &lido);
    }
    // The chain of guesses, by number: only the fields that their own name
    // finds, so that a guess never finds what the lookup would not.
    std::vector<campo*> por_numero;
    for (campo& lido : novo.lista) {
        if (novo.campos.achar(lido.descritor->name()) == &lido) {
            lido.nome = lido.descritor->name();
            if (lido.nome.size() + 3 <= lido.chave.size()) {
                lido.chave[0] = '"';
                std::memcpy(lido.chave.data() + 1, lido.nome.data(), lido.nome.size());
                lido.chave[lido.nome.size() + 1] = '"';
                lido.chave[lido.nome.size() + 2] = ':';
                std::size_t const largura = lido.nome.size() + 3;
                lido.tamanho_chave = static_cast<unsigned char>(largura);
                lido.mascara_chave = largura == 32 ? ~std::uint32_t{0} : (std::uint32_t{1} << largura) - 1;
            }
            por_numero.push_back(&lido);
        }
    }
    std::sort(por_numero.begin(), por_numero.end(),
              [](campo const* a, campo const* b) { return a->descritor->number() < b->descritor->number(); });
    campo const* seguinte = nullptr;
    for (auto i = por_numero.rbegin(); i != por_numero.rend(); ++i) {
        (*i)->seguinte = seguinte;
        seguinte = *i;
    }
    for (campo& lido : novo.lista) {
        if (lido.seguinte == nullptr && lido.nome.empty() && !por_numero.empty()) {
            // A field outside the chain: the guesses go on from the field
            // of the next number.
            auto const depois = std::find_if(por_numero.begin(), por_numero.end(), [&](campo const* outro) {
                return outro->descritor->number() > lido.descritor->number();
            });
            lido.seguinte = depois == por_numero.end() ? nullptr : *depois;
        }
    }
    novo.primeiro = seguinte;
    for (campo& lido : novo.lista) {
        lido.depois = lido.seguinte;
        while (lido.oneof >= 0 && lido.depois != nullptr && lido.depois->oneof == lido.oneof) {
            lido.depois = lido.depois->seguinte;
        }
    }
    for (campo& lido : novo.lista) {
        if (Descriptor const* tipo_mensagem = lido.descritor->message_type()) {
            lido.mensagem = &indexar(*tipo_mensagem);
        }
    }
    // The most a message of the type takes with each field once; no bound
    // with a text, a list, or a type met again within itself (still being
    // indexed, its bound not yet known).
    constexpr std::size_t sem_limite = ~std::size_t{0} / 2;
    std::size_t limite = 0;
    for (campo const& lido : novo.lista) {
        std::size_t valor = sem_limite;
        if (lido.repetido || lido.tipo_cpp == FieldDescriptor::CPPTYPE_STRING) {
            valor = sem_limite;
        } else if (lido.mensagem != nullptr) {
            valor = lido.mensagem->limite + (lido.grupo ? lido.tamanho_etiqueta : 10);
        } else {
            switch (tipo_no_fio(lido.tipo_campo)) {
            case 1: valor = 8; break;
            case 5: valor = 4; break;
            default: valor = 10; break;
            }
        }
        limite = valor >= sem_limite || limite >= sem_limite ? sem_limite : limite + lido.tamanho_etiqueta + valor;
    }
    novo.limite = limite;
    // Those of less than 128 bytes have their length in one byte.
    novo.reserva = limite < 128 ? 1 : 2;
    return novo;
}

template <class T>
std::size_t leitor_json::por_nome<T>::espalhar(std::string_view nome)
{
    // The first and the last word of the name, with its length: names of
    // one message that differ only in a suffix or a prefix (grupo_icms_00,
    // grupo_icms_01...) fall apart, at a few instructions and no loop.
    std::size_t const n = nome.size();
    char const* const p = nome.data();
    std::uint64_t a = 0;
    std::uint64_t b = 0;
    if (n >= 8) {
        std::memcpy(&a, p, 8);
        std::memcpy(&b, p + n - 8, 8);
    } else if (n >= 4) {
        std::uint32_t x;
        std::uint32_t y;
        std::memcpy(&x, p, 4);
        std::memcpy(&y, p + n - 4, 4);
        a = x;
        b = y;
    } else if (n > 0) {
        a = static_cast<unsigned char>(p[0]) | (std::uint64_t{static_cast<unsigned char>(p[n / 2])} << 8) |
            (std::uint64_t{static_cast<unsigned char>(p[n - 1])} << 16);
    }
    std::uint64_t const h = (a ^ std::rotl(b, 29) ^ n) * 0x9E3779B97F4A7C15u;
    return static_cast<std::size_t>(h ^ (h >> 32));
}

template <class T>
void leitor_json::por_nome<T>::crescer()
{
    std::vector<std::pair<std::string_view, T const*>> antigas(std::max<std::size_t>(16, casas_.size() * 2));
    antigas.swap(casas_);
    ocupadas_ = 0;
    for (auto const& [nome, lido] : antigas) {
        if (lido != nullptr) {
            incluir(nome, lido);
        }
    }
}

template <class T>
void leitor_json::por_nome<T>::incluir(std::string_view nome, T const* lido)
{
    // At most half full, so that a search soon meets an empty place.
    if ((ocupadas_ + 1) * 2 > casas_.size()) {
        crescer();
    }
    std::size_t const mascara = casas_.size() - 1;
    for (std::size_t i = espalhar(nome) & mascara;; i = (i + 1) & mascara) {
        auto& casa = casas_[i];
        if (casa.second == nullptr) {
            casa = {nome, lido};
            ++ocupadas_;
            return;
        }
        if (casa.first == nome) {
            return;
        }
    }
}

template <class T>
T const* leitor_json::por_nome<T>::achar(std::string_view nome) const
{
    if (casas_.empty()) {
        return nullptr;
    }
    std::size_t const mascara = casas_.size() - 1;
    for (std::size_t i = espalhar(nome) & mascara;; i = (i + 1) & mascara) {
        auto const& casa = casas_[i];
        if (casa.second == nullptr) {
            return nullptr;
        }
        if (casa.first.size() == nome.size() && mesmos_bytes(casa.first.data(), nome.data(), nome.size())) {
            return casa.second;
        }
    }
}

bool leitor_json::ler(std::string_view texto, Message& mensagem, std::string& motivo) const
{
    // The room for the binary form is kept by the thread from one note to
    // the next, up to a bound: most notes then cost no allocation of it.
    constexpr std::size_t guardados = std::size_t{1} << 20;
    thread_local std::string bytes;
    leitura leitura(tipos_, texto, bytes);
    bool const lido = leitura.documento(mensagem);
    if (bytes.size() > guardados) {
        std::string().swap(bytes);
    }
    if (!lido) {
        motivo = std::move(leitura.motivo());
    }
    return lido;
}

}  // namespace velk::erp::inline v4::tarn::nfe::protobuf::detail
