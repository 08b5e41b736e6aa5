#include "gtin_catalogue.hpp"

namespace velk::tools::sefaz_sim {

std::vector<gtin_item> const& gtin_catalogue::items()
{
    static std::vector<gtin_item> const catalogue = {
        {"7891234567895", "CHALEIRA ELETRICA INOX 1,7L", "85161000", {}},
        {"17891234000016", "CHALEIRA ELETRICA INOX 1,7L CAIXA COM 6 UNIDADES", "85161000", {}},
        {"7891023450018", "CAFE TORRADO E MOIDO TRADICIONAL 500G", "09012100", {}},
        {"7894567002217", "REFRIGERANTE COLA PET 2L", "22021000", {"0301100", "0300700"}},
        {"7891058300128", "DIPIRONA SODICA 500MG/ML SOL INJ CX 100 AMP 2ML", "30049099", {"1300100"}},
        {"6953187044029", "OXIMETRO DE PULSO PORTATIL PM60", "90181980", {}},
        {"78935761", "GOMA DE MASCAR HORTELA 8G", "17041000", {}},
        {"036000291452", "LENCO DE PAPEL FOLHA DUPLA CAIXA COM 100", "48182000", {}},
    };
    return catalogue;
}

gtin_item const* gtin_catalogue::find(std::string_view gtin)
{
    for (gtin_item const& item : items()) {
        if (item.gtin == gtin) {
            return &item;
        }
    }
    return nullptr;
}

}  // namespace velk::tools::sefaz_sim
