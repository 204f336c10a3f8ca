#pragma once

#include "FormRig.h"
#include "regional/CRJ200.h"
#include "regional/RegionalForm.h"

#include <memory>
#include <string>

namespace quillet {

// The regional types in the aircraft menu (the CRJ-200ER last), each with its aircraft.cfg and its
// photograph.
class RegionalRig : public FormRig {
public:
    explicit RegionalRig(RandomSource* generator = nullptr) : FormRig(generator)
    {
        const char* folders[] = {"beech", "emb120", "dash8", "crj200"};
        const RegionalType* types[] = {&beechType(), &emb120Type(), &dhc8Type(), &crj200Type()};
        for (int i = 0; i < 4; ++i) {
            addAircraft(std::string(types[i]->type), folders[i]);
            dir.write(std::string(types[i]->layout.photoFile), "GIF89a");
        }
    }

    // The type's form, set up and showing its stored load the way "Adjust" opens it.
    RegionalForm& open(const RegionalType& type)
    {
        currentType = std::string(type.type);
        form = std::make_unique<RegionalForm>(session, type);
        form->Form_Load();
        form->mnuload_Click();
        return *form;
    }

    // The CRJ-200ER's form, set up and showing its stored load the way "Adjust" opens it.
    CRJ200& openCRJ200()
    {
        currentType = std::string(crj200Type().type);
        crj = std::make_unique<CRJ200>(session);
        crj->Form_Load();
        crj->mnuload_Click();
        return *crj;
    }

    std::unique_ptr<RegionalForm> form;
    std::unique_ptr<CRJ200> crj;
};

} // namespace quillet
