// A long random walk over all screens that write documents: after each action the archive is the model's.
#include <cstdlib>

#include "tests/insieme/passeggiata.h"
#include "tests/supporto/seme.h"

using namespace ambra;

TEST_F(PasseggiataSchermi, NessunDocumentoCambiaCheNonSiaQuelloMostrato) {
    const char* quanti = std::getenv("AMBRA_PASSI");
    const long passi = quanti ? std::atol(quanti) : 2000;
    caso.seed(seme_di_prova());
    for (long passo = 0; passo < passi && !HasFailure(); ++passo) {
        SCOPED_TRACE(passo);
        un_passo();
    }
    for (int che = 0; che <= 14; ++che)
        EXPECT_GT(fatti[che], 0) << "kind " << che << " never came to anything";
}
