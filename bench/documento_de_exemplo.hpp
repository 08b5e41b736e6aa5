#pragma once

// Documents of the benchmarks as a point of sale of a small business in
// Paraná writes them: text of layout 4.00, valid against its schema, with a
// key whose check digit is right, not signed.

#include <cstdio>
#include <string>

namespace velk::bench {

// One sold item, as a point of sale of a small business writes it.
inline std::string item(int number)
{
    char text[1400];
    std::snprintf(
        text, sizeof text,
        "<det nItem=\"%d\"><prod><cProd>%05d</cProd><cEAN>SEM GTIN</cEAN><xProd>PRODUTO DE DEMONSTRACAO %d</xProd>"
        "<NCM>21050010</NCM><CEST>2300100</CEST><CFOP>5405</CFOP><uCom>UN</uCom><qCom>1.0000</qCom>"
        "<vUnCom>12.0000000000</vUnCom><vProd>12.00</vProd><cEANTrib>SEM GTIN</cEANTrib><uTrib>UN</uTrib>"
        "<qTrib>1.0000</qTrib><vUnTrib>12.0000000000</vUnTrib><indTot>1</indTot></prod><imposto>"
        "<vTotTrib>0.00</vTotTrib><ICMS><ICMSSN500><orig>0</orig><CSOSN>500</CSOSN><vBCSTRet>0.00</vBCSTRet>"
        "<pST>0.0000</pST><vICMSSubstituto>0.00</vICMSSubstituto><vICMSSTRet>0.00</vICMSSTRet></ICMSSN500></ICMS>"
        "<PIS><PISOutr><CST>49</CST><vBC>0.00</vBC><pPIS>0.0000</pPIS><vPIS>0.00</vPIS></PISOutr></PIS>"
        "<COFINS><COFINSOutr><CST>49</CST><vBC>0.00</vBC><pCOFINS>0.0000</pCOFINS><vCOFINS>0.00</vCOFINS>"
        "</COFINSOutr></COFINS></imposto></det>",
        number, number, number);
    return text;
}

// The check digit of an access key, from its first 43 digits (modulo 11,
// weights 2 to 9 from the right).
inline char check_digit(std::string const& first_43)
{
    int sum = 0;
    int weight = 2;
    for (auto digit = first_43.rbegin(); digit != first_43.rend(); ++digit) {
        sum += (*digit - '0') * weight;
        weight = weight == 9 ? 2 : weight + 1;
    }
    int const rest = sum % 11;
    return static_cast<char>('0' + (rest < 2 ? 0 : 11 - rest));
}

// An NF-e (model 55) or NFC-e (model 65, with infNFeSupl) of `items` items,
// number `number` of series 1, its key made for that number.
inline std::string document_text(int items, bool nfce, unsigned number = 1305)
{
    std::string const number_text = std::to_string(number);
    std::string key = std::string("41240623285089000185") + (nfce ? "65" : "55") + "001" +
                      std::string(9 - number_text.size(), '0') + number_text + "181782249";
    char const digit = check_digit(key);
    key += digit;
    std::string text = "<NFe xmlns=\"http://www.portalfiscal.inf.br/nfe\"><infNFe Id=\"NFe" + key +
                       "\" versao=\"4.00\"><ide><cUF>41</cUF><cNF>81782249</cNF><natOp>Venda de mercadoria</natOp>"
                       "<mod>" + (nfce ? "65" : "55") +
                       "</mod><serie>1</serie><nNF>" + std::to_string(number) +
                       "</nNF><dhEmi>2024-06-11T15:32:17-03:00</dhEmi><tpNF>1</tpNF>"
                       "<idDest>1</idDest><cMunFG>4108809</cMunFG><tpImp>" + (nfce ? "4" : "1") +
                       "</tpImp><tpEmis>1</tpEmis><cDV>" + std::string(1, digit) +
                       "</cDV><tpAmb>2</tpAmb><finNFe>1</finNFe><indFinal>1</indFinal>"
                       "<indPres>1</indPres><procEmi>0</procEmi><verProc>1.0.0</verProc></ide><emit>"
                       "<CNPJ>23285089000185</CNPJ><xNome>SORVETERIA DE DEMONSTRACAO LTDA</xNome><enderEmit>"
                       "<xLgr>AV CENTRAL</xLgr><nro>177</nro><xBairro>Centro</xBairro><cMun>4108809</cMun>"
                       "<xMun>GUAIRA</xMun><UF>PR</UF><CEP>85980000</CEP><cPais>1058</cPais><xPais>Brasil</xPais>"
                       "</enderEmit><IE>9077361720</IE><CRT>1</CRT></emit><dest><CPF>12345678909</CPF>"
                       "<xNome>CONSUMIDOR DE TESTE</xNome><indIEDest>9</indIEDest></dest>";
    for (int each = 1; each <= items; ++each) {
        text += item(each);
    }
    std::string const total = std::to_string(12 * items) + ".00";
    text += "<total><ICMSTot><vBC>0.00</vBC><vICMS>0.00</vICMS><vICMSDeson>0.00</vICMSDeson><vFCP>0.00</vFCP>"
            "<vBCST>0.00</vBCST><vST>0.00</vST><vFCPST>0.00</vFCPST><vFCPSTRet>0.00</vFCPSTRet><vProd>" +
            total +
            "</vProd><vFrete>0.00</vFrete><vSeg>0.00</vSeg><vDesc>0.00</vDesc><vII>0.00</vII><vIPI>0.00</vIPI>"
            "<vIPIDevol>0.00</vIPIDevol><vPIS>0.00</vPIS><vCOFINS>0.00</vCOFINS><vOutro>0.00</vOutro><vNF>" +
            total + "</vNF></ICMSTot></total><transp><modFrete>9</modFrete></transp><pag><detPag><tPag>01</tPag>"
                    "<vPag>" + total + "</vPag></detPag></pag></infNFe>";
    if (nfce) {
        text += "<infNFeSupl><qrCode><![CDATA[http://www.fazenda.pr.gov.br/nfce/qrcode?p=" + key +
                "|2|2|1|9D6AB4765658166993902F7F7C26FCD0965E328F]]></qrCode>"
                "<urlChave>http://www.fazenda.pr.gov.br/nfce/consulta</urlChave></infNFeSupl>";
    }
    return text + "</NFe>";
}

}  // namespace velk::bench
