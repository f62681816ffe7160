set -g _HIP_SAVEVERSION = '19.5.303'
out/m1.parm {
vm_picture	[ 0	locks=0 ]	(	"$HIP/render/m1.$F4.exr"	)
soho_outputmode	[ 0	locks=0 ]	(	"on"	)
soho_diskfile	[ 0	locks=0 ]	(	"$HIP/ifd/m1.$F4.ifd"	)
}
out/a1.parm {
ar_picture	[ 0	locks=0 ]	(	"$HIP/render/a1.$F4.exr"	)
ar_ass_export_enable	[ 0	locks=0 ]	(	"on"	)
ar_ass_file	[ 0	locks=0 ]	(	"$HIP/ass/a1.$F4.ass"	)
}
