#include <support/nfce_texto.hpp>

#include <support/partes_de_notas.hpp>

#include <cstdio>

namespace velk::test {

namespace {

constexpr char cnpj_emitente[] = "27164983000158";

}  // namespace

nfce_teste nfce_texto(nfce_campos const& c)
{
    unsigned const tp_emis = c.contingencia_offline ? 9 : 1;
    unsigned const ano_mes = static_cast<unsigned>(std::stoi(c.dh_emi.substr(2, 2) + c.dh_emi.substr(5, 2)));
    std::string const chave = chave_acesso(c.cuf, ano_mes, cnpj_emitente, 65, 1, c.nnf, c.cnf, tp_emis);
    char cnf[9];
    std::snprintf(cnf, sizeof cnf, "%08u", c.cnf);

    std::string ide = "<ide><cUF>" + std::to_string(c.cuf) + "</cUF><cNF>" + cnf +
                      "</cNF><natOp>VENDA</natOp><mod>65</mod><serie>1</serie><nNF>" + std::to_string(c.nnf) +
                      "</nNF><dhEmi>" +
                      c.dh_emi + "</dhEmi><tpNF>1</tpNF><idDest>1</idDest><cMunFG>" + c.municipio +
                      "</cMunFG><tpImp>4</tpImp><tpEmis>" + std::to_string(tp_emis) + "</tpEmis><cDV>" + chave.back() +
                      "</cDV><tpAmb>" +
                      std::to_string(c.tp_amb) +
                      "</tpAmb><finNFe>1</finNFe><indFinal>1</indFinal><indPres>1</indPres><procEmi>0</procEmi>"
                      "<verProc>velk-teste</verProc>";
    if (c.contingencia_offline) {
        ide += "<dhCont>" + c.dh_emi + "</dhCont><xJust>SEM CONEXAO COM A SEFAZ AUTORIZADORA</xJust>";
    }
    ide += "</ide>";

    std::string dest;
    if (c.destinatario.has_value()) {
        dest = "<dest><" + c.destinatario->first + ">" + c.destinatario->second + "</" + c.destinatario->first +
               "><indIEDest>9</indIEDest></dest>";
    }

    std::string const texto =
        "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe versao=\"4.00\" Id=\"NFe" + chave + "\">" + ide +
        "<emit><CNPJ>" + cnpj_emitente +
        "</CNPJ><xNome>MERCEARIA DE TESTES LTDA</xNome><enderEmit><xLgr>RUA DAS AMOSTRAS</xLgr><nro>100</nro>"
        "<xBairro>CENTRO</xBairro><cMun>" + c.municipio + "</cMun><xMun>CAPITAL</xMun><UF>" + c.uf +
        "</UF><CEP>01001000</CEP><cPais>1058</cPais><xPais>BRASIL</xPais></enderEmit><IE>147293584118</IE>"
        "<CRT>1</CRT></emit>" + dest +
        "<det nItem=\"1\"><prod><cProd>000123</cProd><cEAN>SEM GTIN</cEAN><xProd>CAFE TORRADO E MOIDO 500G</xProd>"
        "<NCM>09012100</NCM><CFOP>5102</CFOP><uCom>UN</uCom><qCom>1.0000</qCom><vUnCom>" + c.vnf +
        "</vUnCom><vProd>" + c.vnf + "</vProd><cEANTrib>SEM GTIN</cEANTrib><uTrib>UN</uTrib><qTrib>1.0000</qTrib>"
        "<vUnTrib>" + c.vnf + "</vUnTrib><indTot>1</indTot></prod><imposto><ICMS><ICMSSN102><orig>0</orig>"
        "<CSOSN>102</CSOSN></ICMSSN102></ICMS><PIS><PISOutr><CST>99</CST><vBC>0.00</vBC><pPIS>0.0000</pPIS>"
        "<vPIS>0.00</vPIS></PISOutr></PIS><COFINS><COFINSOutr><CST>99</CST><vBC>0.00</vBC>"
        "<pCOFINS>0.0000</pCOFINS><vCOFINS>0.00</vCOFINS></COFINSOutr></COFINS></imposto></det>"
        "<total><ICMSTot><vBC>0.00</vBC><vICMS>" + c.vicms +
        "</vICMS><vICMSDeson>0.00</vICMSDeson><vFCP>0.00</vFCP><vBCST>0.00</vBCST><vST>0.00</vST>"
        "<vFCPST>0.00</vFCPST><vFCPSTRet>0.00</vFCPSTRet><vProd>" + c.vnf +
        "</vProd><vFrete>0.00</vFrete><vSeg>0.00</vSeg><vDesc>0.00</vDesc><vII>0.00</vII><vIPI>0.00</vIPI>"
        "<vIPIDevol>0.00</vIPIDevol><vPIS>0.00</vPIS><vCOFINS>0.00</vCOFINS><vOutro>0.00</vOutro><vNF>" + c.vnf +
        "</vNF></ICMSTot></total><transp><modFrete>9</modFrete></transp><pag><detPag><tPag>01</tPag><vPag>" + c.vnf +
        "</vPag></detPag></pag></infNFe></NFe>";
    return {texto, chave};
}

}  // namespace velk::test
