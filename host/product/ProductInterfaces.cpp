#include "CATICkeParm.h"
#include "CATIDescendants.h"
#include "CATILinkableObject.h"
#include "CATINavigateObject.h"
#include "CATIProduct.h"
#include "CATIRedrawEvent.h"
#include "CATISpecObject.h"

CATImplementInterface(CATICkeParm,
                      {0x2b8c7a10, 0x51d4, 0x4e07, {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
    CATImplementInterface(CATIDescendants,
                          {0x2b8c7a11, 0x51d4, 0x4e07, {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
        CATImplementInterface(CATILinkableObject,
                              {0x2b8c7a12, 0x51d4, 0x4e07, {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
            CATImplementInterface(CATINavigateObject, {0x2b8c7a13,
                                                       0x51d4,
                                                       0x4e07,
                                                       {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
                CATImplementInterface(CATIProduct, {0x2b8c7a14,
                                                    0x51d4,
                                                    0x4e07,
                                                    {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
                    CATImplementInterface(CATIRedrawEvent, {0x2b8c7a15,
                                                            0x51d4,
                                                            0x4e07,
                                                            {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
                        CATImplementInterface(
                            CATISpecObject,
                            {0x2b8c7a16, 0x51d4, 0x4e07, {0xa3, 0x6c, 0x90, 0x1b, 0x77, 0x28, 0xde, 0x45}})
