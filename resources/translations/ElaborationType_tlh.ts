<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>pagh</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>motlh</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>adaptive</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>stochastic (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Sachbogh stochastic</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>reduction watlh (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>ghomHa&apos;bogh matrix (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>ghomHa&apos;bogh matrix HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>motlh</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>adaptive</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>stochastic (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Sachbogh stochastic (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>reduction watlh (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>stochastic Hutlh (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>ghomHa&apos;bogh matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>ghomHa&apos;bogh matrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>ghomHa&apos;bogh matrix T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>tIgh ghomHa&apos;bogh matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>ghombogh matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>overlap matrix (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>overlap matrix HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>halftone NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>halftone LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>halftone MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>halftone HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>halftone UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>halftone UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>halftone NG (patlh wuvbogh)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>halftone LQ (patlh wuvbogh)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>halftone MQ (patlh wuvbogh)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>halftone HQ (patlh wuvbogh)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>halftone UQ (patlh wuvbogh)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Hoch yotlh halftone</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>chuq matrix HiDPI (T)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>halftone 45° C7 (gho)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>halftone 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>halftone 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>halftone 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>halftone 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>motlh RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>motlh RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>motlh RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>motlh+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>vegh</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>vegh (chess wav)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>So&apos;wI&apos;</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>halftone C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>halftone C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>halftone 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>halftone 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>halftone 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>halftone 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>stochastic (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>reduction watlh (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>ghomHa&apos;bogh matrix (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>ghomHa&apos;bogh matrix HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>overlap matrix (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>overlap matrix HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>stochastic (jIr 90°; pe&apos; 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>stochastic</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>stochastic (jIr 90°; pe&apos; 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>stochastic (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>reduction watlh (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>stochastic (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>reduction watlh (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>stochastic (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>reduction watlh (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>ghomHa&apos;bogh matrix (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>ghomHa&apos;bogh matrix HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>stochastic (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>reduction watlh (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>stochastic (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>reduction watlh (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>stochastic (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>reduction watlh (D; HI:3)</translation>
    </message>
</context>
</TS>
