<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptativo</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Estocástico (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Estocástico con crecimiento</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Reducción pura (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Matriz dispersa (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Matriz dispersa HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptativo</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Estocástico (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Estocástico con crecimiento (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Reducción pura (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>No estocástico (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Matriz dispersa (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Matriz dispersa HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Matriz dispersa T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Matriz dispersa personalizada (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Ordenado (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Matriz agrupada (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Matriz de solapamiento (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Matriz de solapamiento HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Trama NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Trama LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Trama MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Trama HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Trama UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Trama UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Trama NG (por niveles)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Trama LQ (por niveles)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Trama MQ (por niveles)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Trama HQ (por niveles)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Trama UQ (por niveles)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Trama a campo completo</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Matriz de distancias HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Correlación (área ampliada)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Correlación (compatibilidad)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Alta definición</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Trama 45° C7 (punto redondo)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Trama 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Trama 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Trama 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Trama 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Estándar RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Estándar RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Estándar RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Estándar+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Paso directo</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Paso directo (división en damero)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Trama C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Trama C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Trama 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Trama 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Trama 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Trama 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Estocástico (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Reducción pura (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Matriz dispersa (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Matriz dispersa HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Matriz de solapamiento (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Matriz de solapamiento HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Estocástico (rotación 90°; recorte 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Estocástico</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Estocástico (rotación 90°; recorte 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Estocástico (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Reducción pura (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Estocástico (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Reducción pura (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Estocástico (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Reducción pura (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Matriz dispersa (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Matriz dispersa HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Estocástico (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Reducción pura (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Estocástico (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Reducción pura (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Estocástico (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Reducción pura (D; HI:3)</translation>
    </message>
</context>
</TS>
