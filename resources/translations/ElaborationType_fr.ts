<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Adaptatif</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stochastique (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Stochastique à croissance</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Réduction pure (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Matrice dispersée (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Matrice dispersée HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Adaptatif</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stochastique (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Stochastique à croissance (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Réduction pure (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Non stochastique (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Matrice dispersée (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Matrice dispersée HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Matrice dispersée T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Matrice dispersée personnalisée (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Ordonné (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Matrice groupée (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Matrice de recouvrement (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Matrice de recouvrement HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Trame NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Trame LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Trame MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Trame HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Trame UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Trame UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Trame NG (selon les niveaux)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Trame LQ (selon les niveaux)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Trame MQ (selon les niveaux)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Trame HQ (selon les niveaux)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Trame UQ (selon les niveaux)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Trame plein champ</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Matrice de distance HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Corrélation (zone étendue)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Corrélation (compatibilité)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Haute définition</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Trame 45° C7 (point rond)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Trame 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Trame 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Trame 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Trame 45° C11</translation>
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
        <translation>Transmission directe</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Transmission directe (répartition en damier)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Trame C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Trame C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Trame 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Trame 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Trame 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Trame 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Stochastique (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Réduction pure (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Matrice dispersée (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Matrice dispersée HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Matrice de recouvrement (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Matrice de recouvrement HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stochastique (rotation 90°&#xa0;; rognage 512px)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stochastique</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stochastique (rotation 90°&#xa0;; rognage 1536px)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stochastique (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Réduction pure (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stochastique (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Réduction pure (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stochastique (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Réduction pure (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Matrice dispersée (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Matrice dispersée HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stochastique (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Réduction pure (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stochastique (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Réduction pure (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stochastique (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Réduction pure (D; HI:3)</translation>
    </message>
</context>
</TS>
