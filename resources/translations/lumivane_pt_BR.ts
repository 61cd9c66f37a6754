<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>Lumivane</name>
    <message>
        <source>&amp;Number:</source>
        <translation>&amp;Número:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Lumivane</source>
        <translation>Lumivane</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Utility window</source>
        <translation>Janela independente</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
    <message>
        <source>&amp;Moon</source>
        <translation>&amp;Lua</translation>
    </message>
    <message>
        <source>&amp;Information</source>
        <translation>&amp;Informações</translation>
    </message>
    <message>
        <source>New moon</source>
        <translation>Lua nova</translation>
    </message>
    <message>
        <source>First quarter</source>
        <translation>Quarto crescente</translation>
    </message>
    <message>
        <source>Full moon</source>
        <translation>Lua cheia</translation>
    </message>
    <message>
        <source>Last quarter</source>
        <translation>Quarto minguante</translation>
    </message>
    <message>
        <source>&amp;Rise and Set</source>
        <translation>&amp;Nascer e ocaso</translation>
    </message>
    <message>
        <source>&amp;Calculation</source>
        <translation>&amp;Cálculo</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Data e hora</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Agora</translation>
    </message>
    <message>
        <source>Back to the present</source>
        <translation>Voltar ao presente</translation>
    </message>
    <message>
        <source>Position within the lunation</source>
        <translation>Posição na lunação</translation>
    </message>
    <message>
        <source>−1 lunation</source>
        <translation>−1 lunação</translation>
    </message>
    <message>
        <source>Full moon of the previous lunation</source>
        <translation>Lua cheia da lunação anterior</translation>
    </message>
    <message>
        <source>−1 d</source>
        <translation>−1 d</translation>
    </message>
    <message>
        <source>Back one day</source>
        <translation>Voltar um dia</translation>
    </message>
    <message>
        <source>−1 h</source>
        <translation>−1 h</translation>
    </message>
    <message>
        <source>Back one hour</source>
        <translation>Voltar uma hora</translation>
    </message>
    <message>
        <source>+1 h</source>
        <translation>+1 h</translation>
    </message>
    <message>
        <source>On one hour</source>
        <translation>Avançar uma hora</translation>
    </message>
    <message>
        <source>+1 d</source>
        <translation>+1 d</translation>
    </message>
    <message>
        <source>On one day</source>
        <translation>Avançar um dia</translation>
    </message>
    <message>
        <source>+1 lunation</source>
        <translation>+1 lunação</translation>
    </message>
    <message>
        <source>Full moon of the next lunation</source>
        <translation>Lua cheia da próxima lunação</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>Confi&amp;gurações</translation>
    </message>
    <message>
        <source>&amp;Time zone:</source>
        <translation>&amp;Fuso horário:</translation>
    </message>
    <message>
        <source>Time zone</source>
        <translation>Fuso horário</translation>
    </message>
    <message>
        <source>GMT</source>
        <translation>GMT</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Sistema</translation>
    </message>
    <message>
        <source>Other...</source>
        <translation>Outro…</translation>
    </message>
    <message>
        <source>&amp;Place:</source>
        <translation>L&amp;ocal:</translation>
    </message>
    <message>
        <source>S&amp;et Latitude and Longitude</source>
        <translation>&amp;Definir latitude e longitude</translation>
    </message>
    <message>
        <source>&amp;Latitude:</source>
        <translation>La&amp;titude:</translation>
    </message>
    <message>
        <source>Latitude in degrees, north positive</source>
        <translation>Latitude em graus, norte positivo</translation>
    </message>
    <message>
        <source>L&amp;ongitude:</source>
        <translation>Longit&amp;ude:</translation>
    </message>
    <message>
        <source>Longitude in degrees, east positive</source>
        <translation>Longitude em graus, leste positivo</translation>
    </message>
    <message>
        <source>&amp;Brightness:</source>
        <translation>&amp;Brilho:</translation>
    </message>
    <message>
        <source>Brightness of the pictures</source>
        <translation>Brilho das imagens</translation>
    </message>
    <message>
        <source>&amp;Copy Information to Clipboard</source>
        <translation>&amp;Copiar informações para a área de transferência</translation>
    </message>
    <message>
        <source>&amp;Open at Login</source>
        <translation>A&amp;brir ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Check for &amp;Update...</source>
        <translation>&amp;Verificar atualizações…</translation>
    </message>
    <message>
        <source>Lumivane &amp;Home Page</source>
        <translation>&amp;Página do Lumivane</translation>
    </message>
    <message>
        <source>&amp;About Lumivane</source>
        <translation>S&amp;obre o Lumivane</translation>
    </message>
    <message>
        <source>&amp;Quit Lumivane</source>
        <translation>&amp;Sair do Lumivane</translation>
    </message>
    <message>
        <source>From &amp;System Settings</source>
        <translation>Das configurações do &amp;sistema</translation>
    </message>
    <message>
        <source>Find on the &amp;Web...</source>
        <translation>Procurar na &amp;Web…</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>new</source>
        <translation>Lua nova</translation>
    </message>
    <message>
        <source>near new</source>
        <translation>Pouco antes da lua nova</translation>
    </message>
    <message>
        <source>past new</source>
        <translation>Pouco depois da lua nova</translation>
    </message>
    <message>
        <source>a waning crescent</source>
        <translation>Lua minguante</translation>
    </message>
    <message>
        <source>a waxing crescent</source>
        <translation>Lua crescente</translation>
    </message>
    <message>
        <source>past last quarter</source>
        <translation>Pouco depois do quarto minguante</translation>
    </message>
    <message>
        <source>near first quarter</source>
        <translation>Pouco antes do quarto crescente</translation>
    </message>
    <message>
        <source>at last quarter</source>
        <translation>Quarto minguante</translation>
    </message>
    <message>
        <source>at first quarter</source>
        <translation>Quarto crescente</translation>
    </message>
    <message>
        <source>near last quarter</source>
        <translation>Pouco antes do quarto minguante</translation>
    </message>
    <message>
        <source>past first quarter</source>
        <translation>Pouco depois do quarto crescente</translation>
    </message>
    <message>
        <source>a waning gibbous</source>
        <translation>Lua gibosa minguante</translation>
    </message>
    <message>
        <source>a waxing gibbous</source>
        <translation>Lua gibosa crescente</translation>
    </message>
    <message>
        <source>past full</source>
        <translation>Pouco depois da lua cheia</translation>
    </message>
    <message>
        <source>near full</source>
        <translation>Pouco antes da lua cheia</translation>
    </message>
    <message>
        <source>full</source>
        <translation>Lua cheia</translation>
    </message>
    <message>
        <source>a Wolf Moon</source>
        <translation>Lua do lobo</translation>
    </message>
    <message>
        <source>a Snow Moon</source>
        <translation>Lua da neve</translation>
    </message>
    <message>
        <source>a Worm Moon</source>
        <translation>Lua da minhoca</translation>
    </message>
    <message>
        <source>a Pink Moon</source>
        <translation>Lua rosa</translation>
    </message>
    <message>
        <source>a Flower Moon</source>
        <translation>Lua das flores</translation>
    </message>
    <message>
        <source>a Strawberry Moon</source>
        <translation>Lua de morango</translation>
    </message>
    <message>
        <source>a Buck Moon</source>
        <translation>Lua do cervo</translation>
    </message>
    <message>
        <source>a Sturgeon Moon</source>
        <translation>Lua do esturjão</translation>
    </message>
    <message>
        <source>a Fruit or Barley Moon</source>
        <translation>Lua das frutas ou da cevada</translation>
    </message>
    <message>
        <source>a Harvest Moon</source>
        <translation>Lua da colheita</translation>
    </message>
    <message>
        <source>a Hunter&apos;s Moon</source>
        <translation>Lua do caçador</translation>
    </message>
    <message>
        <source>a Beaver Moon</source>
        <translation>Lua do castor</translation>
    </message>
    <message>
        <source>a Cold Moon</source>
        <translation>Lua fria</translation>
    </message>
    <message>
        <source>Moon is ^1</source>
        <translation>^1</translation>
    </message>
    <message>
        <source>^1% illumination</source>
        <translation>^1% iluminada</translation>
    </message>
    <message>
        <source>^dd ^hh ^mm since new moon</source>
        <translation>^d d ^h h ^m min desde a lua nova</translation>
    </message>
    <message>
        <source>Lunation ^1</source>
        <translation>Lunação ^1</translation>
    </message>
    <message>
        <source>Date out of range</source>
        <translation>Data fora do intervalo</translation>
    </message>
    <message>
        <source>^1, ^2 is next new moon (^dd ^hh ^mm)</source>
        <translation>Próxima lua nova: ^1 ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next first quarter (^dd ^hh ^mm)</source>
        <translation>Próximo quarto crescente: ^1 ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next full moon (^dd ^hh ^mm)</source>
        <translation>Próxima lua cheia: ^1 ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2 is next last quarter (^dd ^hh ^mm)</source>
        <translation>Próximo quarto minguante: ^1 ^2 (^d d ^h h ^m min)</translation>
    </message>
    <message>
        <source>^1, ^2</source>
        <translation>^1 ^2</translation>
    </message>
    <message>
        <source>Next full moon is ^1</source>
        <translation>Próxima lua cheia: ^1</translation>
    </message>
    <message>
        <source>Open Lumivane Application...</source>
        <translation>Abrir o Lumivane…</translation>
    </message>
    <message>
        <source>Copy Information to Clipboard</source>
        <translation>Copiar informações para a área de transferência</translation>
    </message>
    <message>
        <source>Sun: ^1</source>
        <translation>Sol: ^1</translation>
    </message>
    <message>
        <source>Nautical Twilight: ^1</source>
        <translation>Crepúsculo náutico: ^1</translation>
    </message>
    <message>
        <source>Moon: ^1</source>
        <translation>Lua: ^1</translation>
    </message>
    <message>
        <source>^2/^3</source>
        <translation>^2/^3</translation>
    </message>
    <message>
        <source>no rise</source>
        <translation>não nasce</translation>
    </message>
    <message>
        <source>no set</source>
        <translation>não se põe</translation>
    </message>
    <message>
        <source>always visible</source>
        <translation>sempre visível</translation>
    </message>
    <message>
        <source>always bright</source>
        <translation>sempre claro</translation>
    </message>
    <message>
        <source>always invisible</source>
        <translation>sempre invisível</translation>
    </message>
    <message>
        <source>always dark</source>
        <translation>sempre escuro</translation>
    </message>
    <message>
        <source>Unknown name or info: %d.</source>
        <translation>Nome ou informação desconhecidos: %d.</translation>
    </message>
    <message>
        <source>Unknown info: %d.</source>
        <translation>Informação desconhecida: %d.</translation>
    </message>
    <message>
        <source>Lumivane is not inside your Applications folder.</source>
        <translation>O Lumivane não está instalado entre os seus aplicativos.</translation>
    </message>
    <message>
        <source>We highly recommend you install Lumivane in to your Applications folder.  (This warning will only be shown once for the current install location.)  Please quit Lumivane before moving it, if you do so.</source>
        <translation>Recomendamos fortemente que você instale o Lumivane, para que ele apareça entre os seus aplicativos e seja aberto ao iniciar a sessão a partir de um local fixo. (Este aviso só será exibido uma vez para o local atual.) Antes de movê-lo, saia do Lumivane.</translation>
    </message>
    <message>
        <source>&amp;Show Lumivane</source>
        <translation>&amp;Mostrar o Lumivane</translation>
    </message>
    <message>
        <source>It appears that Lumivane.app was moved while it was running!</source>
        <translation>Parece que o Lumivane foi movido ou removido enquanto estava em execução!</translation>
    </message>
    <message>
        <source>Mac OS X does not support moving or renaming applications while they are running.  Lumivane needs to quit now before bad things happen.</source>
        <translation>Os arquivos do Lumivane não estão mais onde estavam quando ele foi aberto. O Lumivane precisa ser encerrado agora; abra-o novamente a partir do local atual.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>(DST is on for this session.)</source>
        <translation>(Horário de verão ativo nesta sessão.)</translation>
    </message>
    <message>
        <source>(DST is off for this session.)</source>
        <translation>(Horário de verão inativo nesta sessão.)</translation>
    </message>
    <message>
        <source>Version [VERSION] ([BUILD])</source>
        <translation>Versão [VERSION] ([BUILD])</translation>
    </message>
    <message>
        <source>The Moon in your tray: its phase, its age, and when it rises and sets where you are.</source>
        <translation>A Lua na sua bandeja: a fase, a idade e quando ela nasce e se põe onde você está.</translation>
    </message>
    <message>
        <source>Phases of the Moon</source>
        <translation>Fases da Lua</translation>
    </message>
    <message>
        <source>Rising and setting</source>
        <translation>Nascer e ocaso</translation>
    </message>
    <message>
        <source>Oliver Montenbruck and Thomas Pfleger,</source>
        <translation>Oliver Montenbruck e Thomas Pfleger,</translation>
    </message>
    <message>
        <source>Map of the Moon</source>
        <translation>Mapa da Lua</translation>
    </message>
    <message>
        <source>NASA and the USGS Astrogeology programme,</source>
        <translation>NASA e programa de astrogeologia do USGS,</translation>
    </message>
    <message>
        <source>in the public domain</source>
        <translation>em domínio público</translation>
    </message>
    <message>
        <source>Lumivane on the web</source>
        <translation>Lumivane na Web</translation>
    </message>
    <message>
        <source>MIT licence, © The Lumivane developers</source>
        <translation>Licença MIT, © Os desenvolvedores do Lumivane</translation>
    </message>
    <message>
        <source>Sun Rise/set %@</source>
        <translation>Nascer/ocaso %@</translation>
    </message>
    <message>
        <source>Natical Rise/set %@</source>
        <translation>Início/fim %@</translation>
    </message>
    <message>
        <source>Moon Rise/set %@</source>
        <translation>Nascer/ocaso %@</translation>
    </message>
    <message>
        <source>New %@</source>
        <translation>Lua nova: %@</translation>
    </message>
    <message>
        <source>Q1 %@</source>
        <translation>Quarto crescente: %@</translation>
    </message>
    <message>
        <source>Full %@</source>
        <translation>Lua cheia: %@</translation>
    </message>
    <message>
        <source>Q3 %@</source>
        <translation>Quarto minguante: %@</translation>
    </message>
    <message>
        <source>Longitude/Latitude %@/%@</source>
        <translation>Longitude/latitude: %@/%@</translation>
    </message>
    <message>
        <source>GMT </source>
        <translation>GMT </translation>
    </message>
    <message>
        <source>GMT Time Zone Offset:</source>
        <translation>Diferença em relação ao &amp;GMT:</translation>
    </message>
    <message>
        <source>For Example: -5, +1.5, 12, 0</source>
        <translation>Por exemplo: -5, +1.5, 12, 0</translation>
    </message>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
    <message>
        <source>This copy of %1 does not know where to look for updates.</source>
        <translation>Esta cópia do %1 não sabe onde procurar atualizações.</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because this system has no secure connections.</source>
        <translation>O %1 não pode procurar atualizações porque este sistema não oferece conexões seguras.</translation>
    </message>
    <message>
        <source>The update server can&apos;t be reached; please check the network connection.</source>
        <translation>Não foi possível acessar o servidor de atualizações; verifique a conexão de rede.</translation>
    </message>
    <message>
        <source>The update server could not prove its identity, so it was not asked for updates.</source>
        <translation>O servidor de atualizações não conseguiu comprovar sua identidade e por isso não foi consultado.</translation>
    </message>
    <message>
        <source>The update server refers to an insecure address, which was not asked for updates.</source>
        <translation>O servidor de atualizações aponta para um endereço inseguro, que não foi consultado.</translation>
    </message>
    <message>
        <source>The update server takes too long to answer; please try again later.</source>
        <translation>O servidor de atualizações está demorando demais para responder; tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The update server&apos;s answer can&apos;t be understood; please try again later.</source>
        <translation>Não foi possível entender a resposta do servidor de atualizações; tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Software Update</source>
        <translation>Atualização de software</translation>
    </message>
    <message>
        <source>A new version of %1 is available!</source>
        <translation>Há uma nova versão do %1 disponível!</translation>
    </message>
    <message>
        <source>%1 %2 is now available (you have %3).</source>
        <translation>O %1 %2 já está disponível (você tem a versão %3).</translation>
    </message>
    <message>
        <source>&amp;Remind Me Later</source>
        <translation>&amp;Lembrar mais tarde</translation>
    </message>
    <message>
        <source>&amp;Skip This Version</source>
        <translation>&amp;Pular esta versão</translation>
    </message>
    <message>
        <source>&amp;Learn More...</source>
        <translation>&amp;Saiba mais…</translation>
    </message>
    <message>
        <source>You&apos;re up to date!</source>
        <translation>Você está em dia!</translation>
    </message>
    <message>
        <source>%1 %2 is currently the newest version available.</source>
        <translation>O %1 %2 é atualmente a versão mais recente disponível.</translation>
    </message>
    <message>
        <source>No browser could be opened for the page %1.</source>
        <translation>Não foi possível abrir um navegador para a página %1.</translation>
    </message>
    <message>
        <source>Update Error!</source>
        <translation>Erro de atualização!</translation>
    </message>
    <message>
        <source>Release &amp;Notes:</source>
        <translation>&amp;Notas da versão:</translation>
    </message>
    <message>
        <source>Checking for updates...</source>
        <translation>Verificando atualizações…</translation>
    </message>
    <message>
        <source>Browser not found.</source>
        <translation>Navegador não encontrado.</translation>
    </message>
    <message>
        <source>url: &lt;%1&gt;, browser: &lt;%2&gt;</source>
        <translation>URL: &lt;%1&gt;, navegador: &lt;%2&gt;</translation>
    </message>
    <message>
        <source>This is not a number. Example: %1</source>
        <translation>Isto não é um número. Exemplo: %1</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3.</source>
        <translation>%1 não está entre %2 e %3.</translation>
    </message>
    <message>
        <source>Back to the tray icon</source>
        <translation>Voltar ao ícone da bandeja</translation>
    </message>
    <message>
        <source>%1 can&apos;t look for updates, because the program curl is not installed.</source>
        <translation>O %1 não pode procurar atualizações porque o programa curl não está instalado.</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>New Moon</source>
        <translation>Lua nova</translation>
    </message>
    <message>
        <source>First Quarter</source>
        <translation>Quarto crescente</translation>
    </message>
    <message>
        <source>Full Moon</source>
        <translation>Lua cheia</translation>
    </message>
    <message>
        <source>Last Quarter</source>
        <translation>Quarto minguante</translation>
    </message>
    <message numerus="yes">
        <source>in %n minute(s)</source>
        <translation>
            <numerusform>em %n minuto</numerusform>
            <numerusform>em %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n minute(s) ago</source>
        <translation>
            <numerusform>há %n minuto</numerusform>
            <numerusform>há %n minutos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n day(s)</source>
        <translation>
            <numerusform>em %n dia</numerusform>
            <numerusform>em %n dias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n day(s) ago</source>
        <translation>
            <numerusform>há %n dia</numerusform>
            <numerusform>há %n dias</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>in %n hour(s)</source>
        <translation>
            <numerusform>em %n hora</numerusform>
            <numerusform>em %n horas</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n hour(s) ago</source>
        <translation>
            <numerusform>há %n hora</numerusform>
            <numerusform>há %n horas</numerusform>
        </translation>
    </message>
    <message>
        <source>C&amp;ity or country:</source>
        <translation>C&amp;idade ou país:</translation>
    </message>
    <message>
        <source>Cities</source>
        <translation>Cidades</translation>
    </message>
    <message>
        <source>Choose a &amp;City...</source>
        <translation>Escolher uma &amp;cidade…</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>The system has no list of cities.</source>
        <translation>O sistema não tem uma lista de cidades.</translation>
    </message>
    <message>
        <source>No city found.</source>
        <translation>Nenhuma cidade encontrada.</translation>
    </message>
    <message>
        <source>&amp;Tell Me the Quarters</source>
        <translation>Avisar das &amp;fases da Lua</translation>
    </message>
</context>
</TS>
