// Which settings show in the picture, and what others must be for it.

const seen = new Set(`Brightness Contrast Saturation Sharpness NoiseReduction Mirror Flip RotateAngle Zoom ExposureMode
  Wdr WbMode Hue TestPattern PipMode Tally LedMode Language`.split(/\s+/));

const besidePattern = new Set("Tally TallyLevel LedMode LedCustomColor TestPattern Language".split(" "));

// key: {the other's key: one of these values, or, behind "!", any but this one}
const needs = {
  Nr2d: { NoiseReduction: "Manual" },
  Nr3d: { NoiseReduction: "Manual" },
  RotateFit: { RotateAngle: "90deg 270deg" },
  ExpComp: { ExposureMode: "Auto", ExpCompLevel: "!0" },
  ExpCompLevel: { ExposureMode: "Auto", ExpComp: "On" },
  Backlight: { ExposureMode: "Auto" },
  Shutter: { ExposureMode: "Manual ShutterPri" },
  Iris: { ExposureMode: "Manual IrisPri" },
  Gain: { ExposureMode: "Manual" },
  GainLimit: { ExposureMode: "ShutterPri IrisPri" },
  BrightLevel: { ExposureMode: "BrightPri" },
  ColorTemp: { WbMode: "ColorTempMode" },
  RedGain: { WbMode: "Manual" },
  BlueGain: { WbMode: "Manual" },
  PipSource: { PipMode: "On", Zoom: "!100" },
  PipPos: { PipMode: "On" },
  PipSize: { PipMode: "On" },
  TallyLevel: { Tally: "!Off" },
  LedCustomColor: { LedMode: "LedCustom" },
};

/** Why a setting has no effect on the picture now; nothing when it has one. called() gives a setting its name. */
export function whyUnseen(key, settings, called) {
  if (!seen.has(key) && !needs[key]) return "not in the picture";
  const scene = besidePattern.has(key) ? {} : { TestPattern: "Off" };
  for (const [other, wanted] of Object.entries({ ...scene, ...needs[key] })) {
    const setting = settings.get(other);
    const values = wanted.replace("!", "").split(" ");
    if (setting && values.includes(setting.value) === wanted.startsWith("!")) {
      return `needs ${called(setting)}: ${wanted.startsWith("!") ? "not " : ""}${values.join(" or ")}`;
    }
  }
  return "";
}
