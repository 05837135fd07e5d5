<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr_TR">
<context>
    <name>ElaborationType</name>
    <message>
        <source>None</source>
        <translation>Hiçbiri</translation>
    </message>
    <message>
        <source>BilevelStandard</source>
        <translation>Standart</translation>
    </message>
    <message>
        <source>BilevelStandardAdaptive</source>
        <translation>Uyarlamalı</translation>
    </message>
    <message>
        <source>BilevelStochastic</source>
        <translation>Stokastik (B)</translation>
    </message>
    <message>
        <source>BilevelStochasticGrow</source>
        <translation>Büyüyen stokastik</translation>
    </message>
    <message>
        <source>BilevelNearest</source>
        <translation>Saf indirgeme (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask</source>
        <translation>Dağınık matris (B)</translation>
    </message>
    <message>
        <source>BilevelBlueMask1024</source>
        <translation>Dağınık matris HiDPI (B)</translation>
    </message>
    <message>
        <source>TetralevelStandard</source>
        <translation>Standart</translation>
    </message>
    <message>
        <source>TetralevelStandardAdaptive</source>
        <translation>Uyarlamalı</translation>
    </message>
    <message>
        <source>TetralevelStochastic</source>
        <translation>Stokastik (T)</translation>
    </message>
    <message>
        <source>TetralevelStochasticGrow</source>
        <translation>Büyüyen stokastik (T)</translation>
    </message>
    <message>
        <source>TetralevelNearest</source>
        <translation>Saf indirgeme (T)</translation>
    </message>
    <message>
        <source>TetralevelNochastic</source>
        <translation>Stokastik olmayan (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask</source>
        <translation>Dağınık matris (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024</source>
        <translation>Dağınık matris HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelBlueMask1024_777</source>
        <translation>Dağınık matris T7 (T)</translation>
    </message>
    <message>
        <source>TetralevelMaskCustom</source>
        <translation>Kişiselleştirilmiş dağınık matris (T)</translation>
    </message>
    <message>
        <source>TetralevelOrdered</source>
        <translation>Sıralı (T)</translation>
    </message>
    <message>
        <source>TetralevelGreenMask</source>
        <translation>Kümelenmiş matris (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask</source>
        <translation>Örtüşme matrisi (T)</translation>
    </message>
    <message>
        <source>TetralevelOverlapMask1024</source>
        <translation>Örtüşme matrisi HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelHalftone</source>
        <translation>Tram NG</translation>
    </message>
    <message>
        <source>TetralevelHalftone2</source>
        <translation>Tram LQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone3</source>
        <translation>Tram MQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone4</source>
        <translation>Tram HQ</translation>
    </message>
    <message>
        <source>TetralevelHalftone5</source>
        <translation>Tram UQ</translation>
    </message>
    <message>
        <source>TetralevelHalftoneUv</source>
        <translation>Tram UV</translation>
    </message>
    <message>
        <source>TetralevelHalftone1LB</source>
        <translation>Tram NG (seviye tabanlı)</translation>
    </message>
    <message>
        <source>TetralevelHalftone2LB</source>
        <translation>Tram LQ (seviye tabanlı)</translation>
    </message>
    <message>
        <source>TetralevelHalftone3LB</source>
        <translation>Tram MQ (seviye tabanlı)</translation>
    </message>
    <message>
        <source>TetralevelHalftone4LB</source>
        <translation>Tram HQ (seviye tabanlı)</translation>
    </message>
    <message>
        <source>TetralevelHalftone5LB</source>
        <translation>Tram UQ (seviye tabanlı)</translation>
    </message>
    <message>
        <source>TetralevelHalftoneFf</source>
        <translation>Tam alan tramı</translation>
    </message>
    <message>
        <source>TetralevelGlassDistance</source>
        <translation>Mesafe matrisi HiDPI (T)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5</source>
        <translation>Korelasyon (genişletilmiş alan)</translation>
    </message>
    <message>
        <source>TetralevelCorrelationSum2bit5Compatibility</source>
        <translation>Korelasyon (uyumluluk)</translation>
    </message>
    <message>
        <source>BilevelHighDefinition</source>
        <translation>Yüksek çözünürlük</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7</source>
        <translation>Tram 45° C7 (yuvarlak nokta)</translation>
    </message>
    <message>
        <source>BilevelHT45Cell7Diamond</source>
        <translation>Tram 45° C7</translation>
    </message>
    <message>
        <source>BilevelHT45Cell9Diamond</source>
        <translation>Tram 45° C9</translation>
    </message>
    <message>
        <source>BilevelHT45Cell5Diamond</source>
        <translation>Tram 45° C5</translation>
    </message>
    <message>
        <source>BilevelHT45Cell11Diamond</source>
        <translation>Tram 45° C11</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell5</source>
        <translation>Standart RG 45° C5</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell7</source>
        <translation>Standart RG 45° C7</translation>
    </message>
    <message>
        <source>GrayscaleStandardRG45Cell9</source>
        <translation>Standart RG 45° C9</translation>
    </message>
    <message>
        <source>GrayscaleStandardPlus45</source>
        <translation>Standart+ 45°</translation>
    </message>
    <message>
        <source>GrayscalePassThru</source>
        <translation>Doğrudan geçiş</translation>
    </message>
    <message>
        <source>GrayscalePassThruChess</source>
        <translation>Doğrudan geçiş (damalı bölme)</translation>
    </message>
    <message>
        <source>BilevelPatternFill</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>TetralevelWP1Cell8</source>
        <translation>Tram C8</translation>
    </message>
    <message>
        <source>BilevelWP2Cell8</source>
        <translation>Tram C8</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell14</source>
        <translation>Tram 45° 16</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell12</source>
        <translation>Tram 45° 18</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell10</source>
        <translation>Tram 45° 22</translation>
    </message>
    <message>
        <source>TetralevelWP1_45Cell08</source>
        <translation>Tram 45° 28</translation>
    </message>
    <message>
        <source>OctalevelStochastic</source>
        <translation>Stokastik (O)</translation>
    </message>
    <message>
        <source>OctalevelNearest</source>
        <translation>Saf indirgeme (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask</source>
        <translation>Dağınık matris (O)</translation>
    </message>
    <message>
        <source>OctalevelBlueMask1024</source>
        <translation>Dağınık matris HiDPI (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask</source>
        <translation>Örtüşme matrisi (O)</translation>
    </message>
    <message>
        <source>OctalevelOverlapMask1024</source>
        <translation>Örtüşme matrisi HiDPI (O)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W512</source>
        <translation>Stokastik (90° döndürme; 512px kırpma)</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochastic</source>
        <translation>Stokastik</translation>
    </message>
    <message>
        <source>HexaWithTetralevelStochasticR90W1536</source>
        <translation>Stokastik (90° döndürme; 1536px kırpma)</translation>
    </message>
    <message>
        <source>HexalevelStochastic</source>
        <translation>Stokastik (H)</translation>
    </message>
    <message>
        <source>HexalevelNearest</source>
        <translation>Saf indirgeme (H)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI2</source>
        <translation>Stokastik (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI2</source>
        <translation>Saf indirgeme (H; HI:2)</translation>
    </message>
    <message>
        <source>HexalevelStochasticHI3</source>
        <translation>Stokastik (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelNearestHI3</source>
        <translation>Saf indirgeme (H; HI:3)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask</source>
        <translation>Dağınık matris (H)</translation>
    </message>
    <message>
        <source>HexalevelBlueMask1024</source>
        <translation>Dağınık matris HiDPI (H)</translation>
    </message>
    <message>
        <source>DodelevelStochastic</source>
        <translation>Stokastik (D)</translation>
    </message>
    <message>
        <source>DodelevelNearest</source>
        <translation>Saf indirgeme (D)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI2</source>
        <translation>Stokastik (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI2</source>
        <translation>Saf indirgeme (D; HI:2)</translation>
    </message>
    <message>
        <source>DodelevelStochasticHI3</source>
        <translation>Stokastik (D; HI:3)</translation>
    </message>
    <message>
        <source>DodelevelNearestHI3</source>
        <translation>Saf indirgeme (D; HI:3)</translation>
    </message>
</context>
</TS>
