#!/usr/bin/env python3
"""The exported C functions from outside C++, against the installed library.

The build tree is installed into a temporary prefix and found through
pkg-config alone. Then:

- a C program (gerar_url_qrcode_c.c), compiled with gcc and no C++ compiler,
  reaches every result and the buffer protocol, and calls both functions in a
  loop (under the sanitizers in their build);
- this script calls both functions through ctypes for NFC-e notes online and
  offline, in both layouts, and checks each address against the QR string
  worked out here from the note's JSON by the published formula; the infNFe
  text written is put back in an NFe with the address, signed with xmlsec1 by
  a throw-away certificate, verified, and validated against the schema; the
  digest of the QR codes is that signature's DigestValue;
- a C++ program compiled against every installed header links to the shared
  libraries and gives, through the classes, the address the C function gives.
"""
import argparse
import ctypes
import decimal
import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

HERE = Path(__file__).resolve().parent
NFE = 'http://www.portalfiscal.inf.br/nfe'
ID_ATTRIBUTE = f'{NFE}:infNFe'
CSC = '0B4E7A91C2D35F68E1A7B9C04D2F6E83A51C'
URL_CHAVE = 'http://www.nfce.exemplo.gov.br/consulta'
STATES = {'33': 'RJ', '35': 'SP', '41': 'PR'}
# The notes the NFC-e checks run on: three online, one in offline contingency.
NOTES = ['nfce_sp_padaria', 'nfce_rj_mercado', 'nfce_pr_posto', 'nfce_rj_mercado_contingencia']
C_PROGRAM_NOTE = 'nfce_rj_mercado_contingencia'
REPEATED_CALLS = 10000

failures = []
checks = 0


def check(condition, message):
    global checks
    checks += 1
    if not condition:
        failures.append(message)
        print('FAILED:', message, file=sys.stderr)
    return condition


def run(command, **options):
    result = subprocess.run(command, capture_output=True, text=True, **options)
    if result.returncode != 0:
        raise RuntimeError(f'{shlex.join(map(str, command))} exited {result.returncode}\n{result.stdout}{result.stderr}')
    return result.stdout


# --- The address worked out from the note, apart from the library ---------

def consultation_pages(shared):
    """(state, environment, layout) -> page, from the public table of pages."""
    pages = {}
    table = (shared / 'reference' / 'nfce-qrcode-hosts.md').read_text()
    for row in re.finditer(r'^\| \d+ \| ([A-Z]{2})(, layout (\S+))? \| `([^`]+)` \| (`([^`]+)`|[^|]+) \|', table, re.M):
        state, layout, production, homologation = row.group(1), row.group(3), row.group(4), row.group(6)
        for version in ([layout] if layout else ['3.10', '4.00']):
            pages[(state, 1, version)] = production
            pages[(state, 2, version)] = homologation
    return pages


def amount(value):
    number = decimal.Decimal(int((value or {}).get('numero', '0'))).scaleb(-(value or {}).get('casas_decimais', 0))
    return f'{number:.2f}'


def date_text(value):
    date, time, offset = value['date'], value.get('time', {}), value.get('offset', 0)
    sign = '-' if offset < 0 else '+'
    return (f"{date['year']:04d}-{date['month']:02d}-{date['day']:02d}T{time.get('hour', 0):02d}:"
            f"{time.get('minute', 0):02d}:{time.get('second', 0):02d}{sign}{abs(offset) // 60:02d}:{abs(offset) % 60:02d}")


class Note:
    """What the QR code and the checks need of a note, read from its JSON."""

    def __init__(self, name, folder):
        self.name = name
        self.text = (folder / f'{name}.json').read_bytes()
        data = json.loads(self.text)
        self.data = data
        self.key = data['chave_acesso']
        self.tp_amb = 2 if data.get('indicador_ambiente') == 'Homologacao' else 1
        consumer = data.get('destinatario') or {}
        self.consumer = consumer.get('cpf') or consumer.get('cnpj') or consumer.get('indicador_de_estrangeiro')
        self.dh_emi = date_text(data['data_emissao'])
        totals = data['total']['total_nfe_icms']
        self.vnf = amount(totals.get('nota'))
        self.vicms = amount(totals.get('icms_normal'))
        self.offline = self.key[34] == '9'
        self.state = STATES[self.key[:2]]


def sha1_upper(text):
    return hashlib.sha1(text.encode()).hexdigest().upper()


def qrcode_100(note, digest, token):
    text = f'chNFe={note.key}&nVersao=100&tpAmb={note.tp_amb}'
    if note.consumer:
        text += f'&cDest={note.consumer}'
    text += (f'&dhEmi={note.dh_emi.encode().hex()}&vNF={note.vnf}&vICMS={note.vicms}'
             f'&digVal={digest.encode().hex()}&cIdToken={token}')
    return f'{text}&cHashQRCode={sha1_upper(text + CSC)}'


def qrcode_200(note, digest, token):
    text = f'{note.key}|2|{note.tp_amb}'
    if note.offline:
        text += f'|{note.dh_emi[8:10]}|{note.vnf}|{digest.encode().hex()}'
    text += f'|{token}'
    return f'p={text}|{sha1_upper(text + CSC)}'


# --- The installed library ----------------------------------------------

class Installed:
    def __init__(self, arguments, folder):
        self.prefix = folder / 'prefix'
        run([arguments.cmake, '--install', arguments.build, '--prefix', self.prefix])
        pc_files = list(self.prefix.glob('**/pkgconfig/velk-erp-tarn-c.pc'))
        self.environment = dict(os.environ, PKG_CONFIG_PATH=str(pc_files[0].parent))
        self.libdir = self.pkg_config('--variable=libdir', 'velk-erp-tarn-c').strip()

    def pkg_config(self, *arguments):
        return run(['pkg-config', *arguments], env=self.environment)

    def flags(self, package):
        return shlex.split(self.pkg_config('--cflags', package)), shlex.split(self.pkg_config('--libs', package))


class Functions:
    """Both functions through ctypes, as a Python point-of-sale program calls them."""

    def __init__(self, libdir):
        library = ctypes.CDLL(str(Path(libdir) / 'libvelk-erp-tarn.so.4'))
        self.v1 = library.velkerp_tarn_nfe_gerar_url_qrcode_v1
        self.v2 = library.velkerp_tarn_nfe_gerar_url_qrcode_v2
        after_token = [ctypes.c_char_p, ctypes.POINTER(ctypes.c_char), ctypes.POINTER(ctypes.c_uint32), ctypes.c_char_p,
                       ctypes.c_int32]
        self.v1.argtypes = [ctypes.c_char_p, ctypes.c_char_p] + after_token
        self.v2.argtypes = [ctypes.c_char_p, ctypes.c_int32] + after_token
        self.v1.restype = self.v2.restype = ctypes.c_int32

    def call(self, version, json_text, token, path, layout=2, csc=CSC, size=1024):
        """(result, address or None, the size reported)."""
        function = self.v1 if version == 1 else self.v2
        token = token.encode() if isinstance(token, str) else token
        buffer = ctypes.create_string_buffer(size) if size is not None else None
        reported = ctypes.c_uint32(size or 0)
        result = function(json_text, token, csc.encode(), buffer, ctypes.byref(reported), str(path).encode(), layout)
        address = buffer.value.decode() if result == 0 and buffer is not None else None
        return result, address, reported.value


# --- The file, signed and checked ---------------------------------------

SIGNATURE_TEMPLATE = (
    '<Signature xmlns="http://www.w3.org/2000/09/xmldsig#"><SignedInfo>'
    '<CanonicalizationMethod Algorithm="http://www.w3.org/TR/2001/REC-xml-c14n-20010315"/>'
    '<SignatureMethod Algorithm="http://www.w3.org/2000/09/xmldsig#rsa-sha1"/>'
    '<Reference URI="#{id}"><Transforms>'
    '<Transform Algorithm="http://www.w3.org/2000/09/xmldsig#enveloped-signature"/>'
    '<Transform Algorithm="http://www.w3.org/TR/2001/REC-xml-c14n-20010315"/></Transforms>'
    '<DigestMethod Algorithm="http://www.w3.org/2000/09/xmldsig#sha1"/><DigestValue/></Reference>'
    '</SignedInfo><SignatureValue/><KeyInfo><X509Data><X509Certificate/></X509Data></KeyInfo></Signature>')


class Signer:
    def __init__(self, folder, shared):
        self.folder = folder
        self.key, self.certificate = folder / 'key.pem', folder / 'certificate.pem'
        run(['openssl', 'req', '-x509', '-newkey', 'rsa:2048', '-nodes', '-keyout', self.key, '-out',
             self.certificate, '-subj', '/CN=EMITENTE DE TESTE:28416503000146', '-days', '2'])
        self.schemas = shared / 'schemas' / 'nfe'

    def sign_and_check(self, label, infnfe, address, layout):
        """The infNFe text back in an NFe with its supplement, signed; the
        DigestValue when it verifies and validates, else None."""
        identifier = re.match(r'<infNFe [^>]*Id="([^"]+)"', infnfe).group(1)
        supplement = f'<infNFeSupl><qrCode><![CDATA[{address}]]></qrCode>'
        supplement += (f'<urlChave>{URL_CHAVE}</urlChave>' if layout == '4.00' else '') + '</infNFeSupl>'
        template = self.folder / f'{label}-template.xml'
        signed = self.folder / f'{label}-signed.xml'
        template.write_text(f'<NFe xmlns="{NFE}">{infnfe}{supplement}'
                            f'{SIGNATURE_TEMPLATE.format(id=identifier)}</NFe>')
        try:
            run(['xmlsec1', '--sign', '--id-attr:Id', ID_ATTRIBUTE, '--privkey-pem',
                 f'{self.key},{self.certificate}', '--output', signed, template])
            run(['xmlsec1', '--verify', '--id-attr:Id', ID_ATTRIBUTE, '--trusted-pem', self.certificate, signed])
            run(['xmllint', '--noout', '--nonet', '--schema', self.schemas / f'nfe_v{layout}.xsd', signed])
        except RuntimeError as error:
            check(False, f'{label}: {error}')
            return None
        return re.search(r'<DigestValue>([^<]+)</DigestValue>', signed.read_text()).group(1)


def check_values(label, note, infnfe):
    """The document says what the note's JSON says."""
    element = ElementTree.fromstring(infnfe.replace('<infNFe ', f'<infNFe xmlns="{NFE}" ', 1))
    namespace = {'n': NFE}

    def text(path):
        found = element.find(path, namespace)
        return found.text if found is not None else None

    expected = {
        'Id': ('NFe' + note.key, element.get('Id')),
        'tpAmb': (str(note.tp_amb), text('n:ide/n:tpAmb')),
        'dhEmi': (note.dh_emi, text('n:ide/n:dhEmi')),
        'emit/CNPJ': (note.data['emitente']['cnpj'], text('n:emit/n:CNPJ')),
        'vNF': (note.vnf, text('n:total/n:ICMSTot/n:vNF')),
        'vICMS': (note.vicms, text('n:total/n:ICMSTot/n:vICMS')),
        'xProd': ([p['descricao'] for p in note.data['produtos']],
                  [e.text for e in element.findall('n:det/n:prod/n:xProd', namespace)]),
        'dest': (note.consumer, text('n:dest/n:CPF') or text('n:dest/n:CNPJ')),
    }
    for name, (wanted, found) in expected.items():
        check(wanted == found, f'{label}: {name} is {found!r}, the note says {wanted!r}')


# --- The checks -----------------------------------------------------------

def check_notes(functions, notes, pages, signer, folder):
    """Every note through both functions; returns the digests by (note, layout)."""
    digests = {}
    for note in notes:
        for version, layout_code, layout, token in [(1, 2, '4.00', '000001'), (1, 1, '3.10', '000001'),
                                                     (2, 2, '4.00', 7)]:
            label = f'{note.name} v{version} {layout}'
            path = folder / f'{note.name}-v{version}-{layout}.xml'
            result, address, _ = functions.call(version, note.text, token, path, layout_code)
            if not check(result == 0, f'{label}: result {result}'):
                continue
            infnfe = path.read_text()
            check(infnfe.startswith('<infNFe ') and infnfe.endswith('</infNFe>'), f'{label}: the file is infNFe')
            check_values(label, note, infnfe)
            digest = signer.sign_and_check(label.replace(' ', '-'), infnfe, address, layout)
            if digest is None:
                continue
            digests[(note.name, layout)] = digest
            qrcode = qrcode_100(note, digest, token) if version == 1 else qrcode_200(note, digest, token)
            check(address == pages[(note.state, note.tp_amb, layout)] + qrcode,
                  f'{label}: address\n  {address}\nexpected\n  {pages[(note.state, note.tp_amb, layout)] + qrcode}')
    return digests


def check_refusals(functions, note, folder):
    """The notes and calls that go wrong, through both functions."""
    path = folder / 'recusa.xml'
    for version, token in [(1, '000001'), (2, 1)]:
        cases = [
            ('malformed JSON', dict(json_text=b'{"serie": "1",'), 2),
            ('unknown field', dict(json_text=b'{"campo_desconhecido": 1}'), 2),
            ('empty CSC', dict(json_text=note.text, csc=''), 3),
            ('unknown layout', dict(json_text=note.text, layout=3), 1),
            ('buffer of 10 bytes', dict(json_text=note.text, size=10), 4),
        ]
        for name, arguments, expected in cases:
            result, _, _ = functions.call(version, token=token, path=path, **arguments)
            check(result == expected, f'v{version} {name}: result {result}, expected {expected}')
        # The size query, then a buffer one byte short, then the size it asked for.
        result, _, needed = functions.call(version, note.text, token, path, size=None)
        check(result == 0 and needed > 100, f'v{version} size query: result {result}, size {needed}')
        result, _, reported = functions.call(version, note.text, token, path, size=needed - 1)
        check((result, reported) == (4, needed), f'v{version} one byte short: {result}, {reported}')
        result, address, reported = functions.call(version, note.text, token, path, size=reported)
        check((result, reported, len(address or '')) == (0, needed - 1, needed - 1),
              f'v{version} exact buffer: {result}, {reported}')


def check_c_program(installed, arguments, folder, notes_folder):
    """Compiles the C program with gcc alone and runs its table and its loop;
    returns the addresses it printed."""
    cflags, libs = installed.flags('velk-erp-tarn-c')
    program = folder / 'gerar_url_qrcode_c'
    sanitize = shlex.split(arguments.sanitize_flags)
    run(['gcc', '-std=c99', '-Wall', '-Wextra', '-Wpedantic', '-Werror', *sanitize, *cflags,
         HERE / 'gerar_url_qrcode_c.c', '-o', program, *libs, f'-Wl,-rpath,{installed.libdir}'])
    note = notes_folder / f'{C_PROGRAM_NOTE}.json'
    work = folder / 'c'
    work.mkdir()
    addresses = {}
    try:
        output = run([program, 'cases', note, work])
        for line in output.splitlines():
            _, label, address = line.split(' ', 2)
            addresses[label] = address
        run([program, 'repeat', str(REPEATED_CALLS), note, work])
    except RuntimeError as error:
        check(False, f'C program: {error}')
    return addresses


def check_cpp_program(installed, folder, note, page):
    """Every installed header in one program, linked to the shared libraries
    alone: the class interface gives the address the C function gives."""
    include = Path(installed.pkg_config('--variable=includedir', 'velk-erp-tarn').strip())
    headers = sorted(p.relative_to(include).as_posix() for p in include.glob('velk/**/*')
                     if p.suffix in ('.hpp', '.h'))
    (folder / 'todos_os_cabecalhos.hpp').write_text(''.join(f'#include <{h}>\n' for h in headers))
    cflags, libs = installed.flags('velk-erp-tarn')
    program = folder / 'consumidor'
    try:
        run(['g++', '-Wall', '-Wextra', *cflags, f'-I{folder}', HERE / 'consumidor.cpp', '-o', program, *libs,
             f'-Wl,-rpath,{installed.libdir}'])
        run([program, note, page, CSC, folder / 'consumidor.xml'])
    except RuntimeError as error:
        check(False, f'C++ program: {error}')


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--cmake', required=True)
    parser.add_argument('--build', required=True)
    parser.add_argument('--shared', required=True, type=Path)
    parser.add_argument('--notes', required=True, type=Path)
    parser.add_argument('--sanitize-flags', default='')
    arguments = parser.parse_args()

    with tempfile.TemporaryDirectory(prefix='velk-instalada-') as name:
        folder = Path(name)
        installed = Installed(arguments, folder)
        c_addresses = check_c_program(installed, arguments, folder, arguments.notes)
        if arguments.sanitize_flags:
            # Python and the tools below do not run on a sanitized library;
            # the C program's loop is what this build is for.
            print(f'{checks} checks, {len(failures)} failed')
            return 1 if failures else 0

        notes = [Note(name, arguments.notes) for name in NOTES]
        pages = consultation_pages(arguments.shared)
        functions = Functions(installed.libdir)
        digests = check_notes(functions, notes, pages, Signer(folder, arguments.shared), folder)
        check_refusals(functions, notes[0], folder)

        # The C program's addresses, by the same formula.
        note = next(n for n in notes if n.name == C_PROGRAM_NOTE)
        page = pages[(note.state, note.tp_amb, '4.00')]
        expected = {'v1-4.00': page + qrcode_100(note, digests.get((note.name, '4.00'), ''), '000001'),
                    'v1-3.10': pages[(note.state, note.tp_amb, '3.10')] +
                    qrcode_100(note, digests.get((note.name, '3.10'), ''), '000001')}
        for token in [1, 0, 999999]:
            expected[f'v2-{token}'] = page + qrcode_200(note, digests.get((note.name, '4.00'), ''), token)
        for label, address in expected.items():
            check(c_addresses.get(label) == address,
                  f'C program {label}:\n  {c_addresses.get(label)}\nexpected\n  {address}')

        check_cpp_program(installed, folder, arguments.notes / f'{notes[0].name}.json',
                          pages[(notes[0].state, notes[0].tp_amb, '4.00')])
    print(f'{checks} checks, {len(failures)} failed')
    return 1 if failures else 0


if __name__ == '__main__':
    sys.exit(main())
