#include "menu/core/value_status.h"

#include <iterator>

#include "comm/text.h"
#include "menu/core/words.h"
#include "osd_menu.h"
#include "platform/config_call.h"

struct tagSTATUS_SOURCE_S;
using OSD_STATUS_FUNC = void (*)(const tagSTATUS_SOURCE_S&, const char* pcLanguage, OSD_TEXT& acText);

struct tagSTATUS_SOURCE_S {
    const char* pcKey;
    OSD_STATUS_FUNC pfnFill;
    tagOSD_MENU_GET_EVENT_E enEvent; // for the get-callback
    const char* pcParent;            // for the configuration
};

// The callback's answer, ended within its block; empty without a callback.
static void osdStatusAsk(tagOSD_MENU_GET_EVENT_E enEvent, tagOSD_MENU_CONTROL_PARAM_S* pstAnswer)
{
    pstAnswer->acText[0] = '\0';
    if (gs_OsdHandler.pfnGet != nullptr) {
        gs_OsdHandler.pfnGet(gs_OsdHandler.pvUser, enEvent, pstAnswer);
        pstAnswer->acText[sizeof(pstAnswer->acText) - 1] = '\0';
    }
}

static void osdStatusFromHost(const tagSTATUS_SOURCE_S& stSource, const char* /*pcLanguage*/, OSD_TEXT& acText)
{
    tagOSD_MENU_CONTROL_PARAM_S stAnswer;
    osdStatusAsk(stSource.enEvent, &stAnswer);
    osdTextSetField(acText, stAnswer.acText);
}

static void osdStatusTranslated(const tagSTATUS_SOURCE_S& stSource, const char* pcLanguage, OSD_TEXT& acText)
{
    tagOSD_MENU_CONTROL_PARAM_S stAnswer;
    osdStatusAsk(stSource.enEvent, &stAnswer);
    osdCfgTranslate(pcLanguage, stAnswer.acText, acText);
}

static void osdStatusFromConfig(const tagSTATUS_SOURCE_S& stSource, const char* /*pcLanguage*/, OSD_TEXT& acText)
{
    tagCFG_VALUE_TXT_S stTxt = {};
    osdCfgGetTxt(stSource.pcParent, stSource.pcKey, &stTxt);
    osdTextSetField(acText, stTxt.acValue);
}

static void osdStatusFromDevice(const tagSTATUS_SOURCE_S& /*stSource*/, const char* /*pcLanguage*/, OSD_TEXT& acText)
{
    tagDEV_ATTR_CONTENT_S stAttr = {};
    (void)BSP_PARTITION_GetDevAttribute(&stAttr); // the record counts, not the result
    osdTextSetField(acText, stAttr.acDeviceType);
}

static constexpr tagOSD_MENU_GET_EVENT_E c_enNoEvent = OSD_MENU_GET_AF_VERSION; // where the source is another

static constexpr tagSTATUS_SOURCE_S c_astStatusSource[] = {
    {"FwVersion", osdStatusFromHost, OSD_MENU_GET_FW_VERSION, nullptr},
    {"IspVersion", osdStatusFromHost, OSD_MENU_GET_ISP_VERSION, nullptr},
    {"AfVersion", osdStatusFromHost, OSD_MENU_GET_AF_VERSION, nullptr},
    {"AiVersion", osdStatusFromHost, OSD_MENU_GET_AI_VERSION, nullptr},
    {"VideoFormat", osdStatusFromHost, OSD_MENU_GET_VIDEO_FORMAT, nullptr},
    {OSD_KEY_IP_ADDR, osdStatusFromConfig, c_enNoEvent, "NetCard0"},
    {"NetMask", osdStatusFromConfig, c_enNoEvent, "NetCard0"},
    {"GateWay", osdStatusFromConfig, c_enNoEvent, "NetCard0"},
    {"Dns1", osdStatusFromConfig, c_enNoEvent, "NetCard0"},
    {"Dns2", osdStatusFromConfig, c_enNoEvent, "NetCard0"},
    {"IrisLevel", osdStatusFromConfig, c_enNoEvent, "Panorama"},
    {"DeviceName", osdStatusFromHost, OSD_MENU_GET_DEVICE_NAME, nullptr},
    {"DeviceType", osdStatusFromDevice, c_enNoEvent, nullptr},
    {"SN", osdStatusFromHost, OSD_MENU_GET_SN, nullptr},
    {"Mac", osdStatusFromHost, OSD_MENU_GET_MAC, nullptr},
    {"NdiVersion", osdStatusFromHost, OSD_MENU_GET_NDI_VERSION, nullptr},
    {"FullNdiVersion", osdStatusFromHost, OSD_MENU_GET_FULL_NDI_VERSION, nullptr},
    {"NdiStatus", osdStatusTranslated, OSD_MENU_GET_NDI_STATUS, nullptr},
    {OSD_KEY_LED_COLOR, osdStatusFromHost, OSD_MENU_GET_LED_CUSTOM_COLOR, nullptr}};

tagSTATUS_KEY_S osdStatusKey(size_t uIdx)
{
    if (uIdx >= std::size(c_astStatusSource)) {
        return {};
    }
    const tagSTATUS_SOURCE_S& stSource = c_astStatusSource[uIdx];
    return {stSource.pcKey, stSource.pcParent, stSource.pfnFill == osdStatusTranslated};
}

void osdStatusRead(const char* pcLanguage, tagITEM_NODE_S* pstItem)
{
    OSD_TEXT acText = "";
    for (const tagSTATUS_SOURCE_S& stSource : c_astStatusSource) {
        if (osdTextEqual(stSource.pcKey, pstItem->acItemIndex)) {
            stSource.pfnFill(stSource, pcLanguage, acText);
            break;
        }
    }
    pstItem->s32ValCnt = 1;
    osdTextSet(pstItem->acValue[0], acText);
}
