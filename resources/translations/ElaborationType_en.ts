<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptive</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stochastic (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stochastic grow</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Pure reduction (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Spread matrix (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Spread matrix HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptive</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stochastic (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stochastic grow (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Pure reduction (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>No-Stochastic (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Spread matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Spread matrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Spread matrix T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Spread matrix Custom (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Ordered (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Aggregate matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Overlap matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Overlap matrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Halftone NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Halftone LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Halftone MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Halftone HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Halftone UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Halftone UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Halftone NG (level based)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Halftone LQ (level based)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Halftone MQ (level based)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Halftone HQ (level based)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Halftone UQ (level based)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Halftone full field</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Distance matrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Correlation (extended area)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Correlation (compatibility)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>High Definition</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Halftone 45° C7 (round)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Halftone 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Halftone 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Halftone 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Halftone 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Standard RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Standard RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Standard RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Standard+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Pass thru</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Pass thru (Chess split)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Mask</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Halftone C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Halftone C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Halftone 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Halftone 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Halftone 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Halftone 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Stochastic (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Pure reduction (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Spread matrix (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Spread matrix HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Overlap matrix (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Overlap matrix HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stochastic (Rotate 90°; Crop 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stochastic</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stochastic (Rotate 90°; Crop 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stochastic (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Pure reduction (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stochastic (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Pure reduction (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stochastic (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Pure reduction (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Spread matrix (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Spread matrix HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stochastic (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Pure reduction (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stochastic (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Pure reduction (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stochastic (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Pure reduction (D; HI:3)</translation>
    </message>
    <message>
        <source>FiftlevelStochastic</source>
        <translation>Stochastic (F)</translation>
    </message>
    <message>
        <source>FiftlevelNearest</source>
        <translation>Pure reduction (F)</translation>
    </message>
    <message>
        <source>FiftlevelBlueMask</source>
        <translation>Spread matrix (F)</translation>
    </message>
    <message>
        <source>Grayscale_8</source>
        <translation>Grayscale (8-bits)</translation>
    </message>
    <message>
        <source>Grayscale_16</source>
        <translation>Grayscale (16-bits)</translation>
    </message>
</context>
</TS>
