<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Padrão</translation>
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
        <translation>Estocástico com crescimento</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Redução pura (B)</translation>
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
        <translation>Padrão</translation>
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
        <translation>Estocástico com crescimento (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Redução pura (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Não estocástico (T)</translation>
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
        <translation>Matriz de sobreposição (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Matriz de sobreposição HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Retícula NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Retícula LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Retícula MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Retícula HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Retícula UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Retícula UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Retícula NG (por níveis)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Retícula LQ (por níveis)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Retícula MQ (por níveis)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Retícula HQ (por níveis)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Retícula UQ (por níveis)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Retícula de campo completo</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Matriz de distâncias HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Correlação (área estendida)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Correlação (compatibilidade)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Alta definição</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Retícula 45° C7 (ponto redondo)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Retícula 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Retícula 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Retícula 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Retícula 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Padrão RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Padrão RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Padrão RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Padrão+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Passagem direta</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Passagem direta (divisão em xadrez)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Retícula C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Retícula C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Retícula 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Retícula 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Retícula 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Retícula 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Estocástico (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Redução pura (O)</translation>
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
        <translation>Matriz de sobreposição (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Matriz de sobreposição HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Estocástico (rotação 90°; recorte 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Estocástico</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Estocástico (rotação 90°; recorte 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Estocástico (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Redução pura (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Estocástico (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Redução pura (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Estocástico (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Redução pura (H; HI:3)</translation>
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
        <translation>Redução pura (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Estocástico (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Redução pura (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Estocástico (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Redução pura (D; HI:3)</translation>
    </message>
</context>
</TS>
